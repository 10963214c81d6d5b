// The one class that a host creates: it opens a transfer set whole and answers from memory. This include
// brings all that its answers are made of: the element classes, the flat records and `IsoDDIConstants`.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/error_codes.h"
#include "isoxmllib/isoxmllib.h"       // IWYU pragma: export
#include "transfer/ISORxMap.h"         // IWYU pragma: export
#include "transfer/IsoDDIConstants.h"  // IWYU pragma: export
#include "transfer/IsoField.h"         // IWYU pragma: export
#include "transfer/IsoRecords.h"       // IWYU pragma: export
#include "transfer/TaskInfo.h"         // IWYU pragma: export
#include "transfer/reader/xmlReader.h"

/// One document that could not be opened or read.
struct IsoXmlError {
  lmx::elmx_error error;  ///< The code; never 0.
  std::int32_t line;      ///< Where the reader stood; 1 for a file that could not be opened.
  std::string fileName;   ///< The name as it was given, without directory and without an added suffix.
  std::string message;    ///< The fixed text of the code.
};

/// One document of a transfer set that was tried, whether it could be read or not.
struct IsoDocument {
  enum class Role { Main, LinkList, External };

  std::string name;       ///< The name as it was given.
  Role role;              ///< What it is in the set.
  lmx::elmx_error error;  ///< 0 when it was read.
  int line;               ///< Where the reader stood at the end.
  std::string item;       ///< The element or attribute at fault ("@A" is attribute A), else empty.
  std::string message;    ///< The reader's full error text, several lines; empty when it was read.
  const Root* root;       ///< Borrowed until the parser dies; null when it failed, and for the link list.
};

/// A transfer set of ISO 11783-10 task data: the main document (root "ISO11783_TaskData"), the link list and
/// the external files that it names.
/// Errors: none is thrown. Each document that failed is in `getErrors`, and the others stand without it; but
/// when the main document fails, nothing else is opened. FIFOs, sockets and devices are not opened. One file
/// is opened at most 16 times for a set, counted as main document, link list and external file together and
/// under whatever names; each further reference to it fails with `ELMX_NO_FILE`. Different files are not
/// limited.
/// Ownership: the parser owns all documents. Pointers that it hands out die with it, save the metadata's.
/// Threads: one at a time. Each held document keeps its file open until destruction.
class ISOXML_API IsoXmlParser {
 public:
  /// A document with the reader that holds lists of its elements.
  struct ISOXML_API Xml {
    explicit Xml(char const* path) : reader(path) {}

    Root root;              ///< Owns the element tree.
    lmx::xmlReader reader;  ///< Dies first: its lists point into `root`.
  };

  /// Opens the transfer set in `directory` and reads its documents: the main document, its link list, then
  /// each external file of type "1" ("XFR"), in document order. Nothing is opened later.
  /// @param fileName  the main document; ".XML" is added unless the name has it somewhere, in either case
  IsoXmlParser(std::string directory, std::string fileName);
  ~IsoXmlParser();
  IsoXmlParser(IsoXmlParser const&) = delete;
  IsoXmlParser& operator=(IsoXmlParser const&) = delete;

  /// One record for each document that failed, in the order of failure. Borrowed until the parser dies.
  std::vector<IsoXmlError> const& getErrors() const { return errors; }
  /// Every document that was tried, in that order.
  std::vector<IsoDocument> getDocuments() const { return documents; }

  /// True when the main document's "VersionMajor" is exactly "4".
  bool isSchemaVersion4();
  /// The main document's last "P917_Metadata", or null. Stays valid after the parser is gone.
  P917Metadata* getP917Metadata();
  /// The UUID that the link list gives to an object identifier; "" when there is none. Case matters.
  std::string getIsoUuid(std::string const& objectId) const;
  /// All pairs of the link list, from object identifier to UUID. Borrowed until the parser dies.
  std::map<std::string, std::string> const& getUuidLinks() const { return uuidLinks; }

  // Views. Each call builds its result anew from all documents, the main one first, then the external files
  // in the order of their references; within a document in the order in which the elements ended. Nothing is
  // filtered, sorted or merged. With no document a view is empty; nothing is ever reported. Records own
  // copies and outlive the parser. Elements are borrowed until the parser dies and must not be deleted.

  /// All farms, with their own and their customers' UUIDs.
  std::vector<IsoFarm> getFarms() const;
  /// All customers, with their UUIDs.
  std::vector<IsoGrower> getGrowers() const;
  /// All attached files, the one that named the link list among them.
  std::vector<IsoAttachedFile> getAttachedFiles() const;
  std::vector<Task*> getTasks() const;
  std::vector<Product*> getProducts() const;
  std::vector<ProductGroup*> getProductGroups() const;
  std::vector<ValuePresentation*> getValuePresentations() const;
  std::vector<P917Question*> getQuestions() const;
  std::vector<CropType*> getCropTypes() const;

  /// All fields with their geometry and all UUIDs. Frees the boundary polygons of guidance patterns, as
  /// `IsoField` tells.
  std::vector<IsoField> getFields();
  /// The elements that `getFields` makes its records from, in the same order.
  std::vector<Field*> getLmxFields() const;
  /// One field, with the UUIDs of the field itself, its farm, its customer and its guidance lines only.
  /// `field` must not be null; its pattern boundaries are freed, as `IsoField` tells.
  IsoField fillIsoField(Field* field);

  /// All tasks, whatever their state.
  std::vector<lmx::TaskInfo> getTaskInfoList() const;
  /// Fills `map` for the task that has the identifier of `info`: zones from the documents, the last task of
  /// that identifier winning, all else from `info`. Without such a task `taskId` and `treatmentZones` keep
  /// what they held: hand in a fresh map to tell. Each call looks at the tasks' identifiers as they are then.
  void getISORxMap(lmx::TaskInfo info, lmx::ISORxMap& map) const;
  /// The maps of all tasks, in their order: what `getISORxMap` gives for each, in one pass over them. Of
  /// tasks that share an identifier the last one alone has a map, and one without an identifier has none.
  std::vector<lmx::ISORxMap> getISORxMaps() const;

  /// Opens and reads one document of the directory. Empty on failure, which adds a record to `getErrors`.
  /// @param error  receives the code; may be null
  std::shared_ptr<Xml> openFile(std::string const& fileName, lmx::elmx_error* error);
  /// Opens the main document and what it names. The constructor has called it.
  void createReaders();
  /// Reads the link list that the first attached file of type 1 names, and takes its pairs: the first value
  /// of an identifier stays.
  void processLinks(lmx::xmlReader& reader);

  std::string directory;                           ///< The set's, as given to the constructor.
  std::string fileName;                            ///< The main document's name, as given to the constructor.
  std::shared_ptr<Xml> mainXml;                    ///< The main document; empty when it failed.
  std::vector<std::shared_ptr<Xml>> xmlDocuments;  ///< The main document, then each external file read.
  std::vector<IsoXmlError> errors;                 ///< One for each document that failed, in that order.
  std::map<std::string, std::string> uuidLinks;    ///< The link list's UUIDs by object identifier.

 private:
  std::shared_ptr<Xml> p_open(std::string const& name, std::string const& path, lmx::elmx_error* error,
                              IsoDocument* document);
  std::shared_ptr<Xml> p_openOfSet(std::string const& name, IsoDocument::Role role, lmx::elmx_error* error);
  std::string p_path(std::string const& name) const;
  bool p_takeOpening(std::string const& path);

  std::vector<IsoDocument> documents;
  std::map<std::pair<std::uintmax_t, std::uintmax_t>, int> openings;  // of a file, by device and number there
};
