#include "transfer/IsoXmlParser.h"

#include <optional>
#include <utility>

#include "transfer/reader/document_file.h"

namespace {

constexpr unsigned char link_list_type = 1;  // of an attached file: the link list document
constexpr int most_openings = 16;            // of one file, for one set
constexpr char no_path[] = "";               // leads to no file

std::string to_upper(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

std::string link_list_name(std::vector<AttachedFile*> const& files) {
  for (AttachedFile const* file : files) {
    if (file->GetType() == link_list_type) return file->GetFileNameWithExtension();
  }
  return std::string();
}

}  // namespace

IsoXmlParser::IsoXmlParser(std::string directory_in, std::string fileName_in)
    : directory(std::move(directory_in)), fileName(std::move(fileName_in)) {
  createReaders();
}

IsoXmlParser::~IsoXmlParser() = default;

// The search is for ".XML" anywhere and not at the end: "a.xml.bak" gets no suffix. The path keeps the case
// that it was given in.
std::string IsoXmlParser::p_path(std::string const& name) const {
  std::string path = directory + "/" + name;
  if (to_upper(name).find(".XML") == std::string::npos) path += ".XML";
  return path;
}

// Counts an opening of the file, or false when it has had all of its own: a small main document could take
// any amount of memory by naming one file over and over. Each opening for the set counts, as main document,
// as link list or as external file, by whatever name and whether it can be read or not; a host's own do not.
bool IsoXmlParser::p_takeOpening(std::string const& path) {
  const std::optional<lmx::detail::file_identity> file = lmx::detail::identity_of(path.c_str());
  if (!file) return true;  // it will fail by itself
  int& count = openings[*file];
  if (count == most_openings) return false;
  ++count;
  return true;
}

// Fills all of `document` but its role, and its root only for a document that was read.
std::shared_ptr<IsoXmlParser::Xml> IsoXmlParser::p_open(std::string const& name, std::string const& path,
                                                        lmx::elmx_error* error, IsoDocument* document) {
  auto xml = std::make_shared<Xml>(path.c_str());
  const lmx::elmx_error code =
      xml->reader.isOpen() ? xml->root.unmarshal(xml->reader)
                           : xml->reader.capture_error(lmx::ELMX_NO_FILE, name, "IsoXmlParser", __LINE__);
  document->name = name;
  document->error = code;
  document->line = xml->reader.line();
  document->root = &xml->root;
  if (code != lmx::ELMX_OK) {
    document->item = xml->reader.debug_error().m_item;
    document->message = xml->reader.get_error_message();
    document->root = nullptr;
    errors.push_back({code, xml->reader.line(), name, lmx::get_error_description(code)});
    xml.reset();
  }
  if (error != nullptr) *error = code;
  return xml;
}

std::shared_ptr<IsoXmlParser::Xml> IsoXmlParser::p_openOfSet(std::string const& name, IsoDocument::Role role,
                                                             lmx::elmx_error* error) {
  IsoDocument document{};
  document.role = role;
  const std::string path = p_path(name);
  auto xml = p_open(name, p_takeOpening(path) ? path : no_path, error, &document);
  if (role == IsoDocument::Role::LinkList)
    document.root = nullptr;  // released as soon as its pairs are taken
  documents.push_back(std::move(document));
  return xml;
}

std::shared_ptr<IsoXmlParser::Xml> IsoXmlParser::openFile(std::string const& name, lmx::elmx_error* error) {
  IsoDocument not_of_the_set{};
  return p_open(name, p_path(name), error, &not_of_the_set);
}

// References inside external files are not followed, so there is no cycle to guard against. A file that is
// named twice is read twice.
void IsoXmlParser::createReaders() {
  openings.clear();
  lmx::elmx_error error = lmx::ELMX_UNDEFINED_ERROR;
  mainXml = p_openOfSet(fileName, IsoDocument::Role::Main, &error);
  if (error != lmx::ELMX_OK) return;
  processLinks(mainXml->reader);
  xmlDocuments.push_back(mainXml);
  for (ExternalFileReference const* reference : mainXml->reader.getExternalFileReferenceContainer()) {
    if (reference->GetenumType() != elmx_enum_1) continue;
    auto xml = p_openOfSet(reference->GetFileName(), IsoDocument::Role::External, &error);
    if (error == lmx::ELMX_OK) xmlDocuments.push_back(std::move(xml));
  }
}

void IsoXmlParser::processLinks(lmx::xmlReader& reader) {
  const std::string name = link_list_name(reader.getAttachedFileContainer());
  if (name.empty()) return;
  const auto xml = p_openOfSet(name, IsoDocument::Role::LinkList, nullptr);
  if (xml == nullptr) return;
  xml->root.SelectLinkList();  // another root element has no links
  LinkList const& list = xml->root.GetLinkList();
  for (std::size_t i = 0; i != list.SizeInnerLinkList(); ++i) {
    InnerLinkList const& groups = list.GetInnerLinkList(i);
    for (std::size_t g = 0; g != groups.SizeLinkGroup(); ++g) {
      LinkGroup const& group = groups.GetLinkGroup(g);
      if (group.GetenumType() != elmx_enum_1) continue;
      for (std::size_t j = 0; j != group.SizeInnerLinkGroup(); ++j) {
        InnerLinkGroup const& links = group.GetInnerLinkGroup(j);
        for (std::size_t k = 0; k != links.SizeLink(); ++k) {
          Link const& link = links.GetLink(k);
          uuidLinks.emplace(link.GetObjectIdRef(), link.GetValue());
        }
      }
    }
  }
}

// Looks without selecting: another root element stays as it is, since the reader's lists point into it.
bool IsoXmlParser::isSchemaVersion4() {
  if (mainXml == nullptr || mainXml->root.chosen != Root::TaskDataChosen) return false;
  return std::as_const(mainXml->root).GetTaskData().GetVersionMajor() == "4";
}

P917Metadata* IsoXmlParser::getP917Metadata() {
  return mainXml == nullptr ? nullptr : mainXml->reader.getP917Metadata();
}

std::string IsoXmlParser::getIsoUuid(std::string const& objectId) const {
  const auto link = uuidLinks.find(objectId);
  return link == uuidLinks.end() ? std::string() : link->second;
}
