// The reader that every document of a transfer set is parsed through. It is the runtime's reader with one
// addition: each element of a few chosen classes hands itself over as soon as it is complete. Afterwards
// the reader holds flat lists of all growers, fields, tasks and so on, wherever in the tree they stood.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_read.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "isoxmllib/fwd.h"
#include "transfer/ISORxMap.h"
#include "transfer/TaskInfo.h"

namespace lmx {

namespace detail {

/// Holds the file, if the reader has one of its own, so that it is there before the reader and outlives it.
struct ISOXML_API file_input {
  explicit file_input(char const* fileName);
  explicit file_input(c_read& given) : mr_source(given) {}
  std::unique_ptr<c_read_file> fileInput;
  c_read& mr_source;
};

}  // namespace detail

/// Reads one document. The lists hold borrowed pointers in the order in which the elements ended: they belong
/// to the element tree and die with it. After a failed read none of them may be used. A reader that reads
/// another document, or the same once more, begins with empty lists.
/// Threads: one at a time. The file stays open until destruction.
class ISOXML_API xmlReader : protected detail::file_input, public c_xml_reader {
 public:
  /// Opens `fileName`, a file or a directory. A failed open throws nothing and reports nothing: ask `isOpen`.
  /// A FIFO, a socket or a device is not opened, nor waited for; a `c_read_file` given as the source reads
  /// those.
  explicit xmlReader(char const* fileName);
  /// Reads from `source`, which is borrowed and must outlive the reader: a document in memory, an archive, a
  /// network.
  explicit xmlReader(c_read& source);
  ~xmlReader() override;

  /// True when the source can be read.
  bool isOpen() const { return mr_source.is_open(); }

  /// Empties the lists. Called by element classes where a document begins.
  void forgetElements();
  // Called by element classes at their end, when nothing went wrong. The pointers are borrowed.
  void addNewGrower(Grower* grower) { growers.push_back(grower); }
  void addNewFarm(Farm* farm) { farms.push_back(farm); }
  void addNewField(Field* field) { fields.push_back(field); }
  void addNewExternalFileReference(ExternalFileReference* reference) {
    externalFileReferences.push_back(reference);
  }
  void addNewAttachedFile(AttachedFile* file) { attachedFiles.push_back(file); }
  void addNewTask(Task* task) { tasks.push_back(task); }
  void addNewProduct(Product* product) { products.push_back(product); }
  void addNewValuePre(ValuePresentation* presentation) { valuePresentations.push_back(presentation); }
  void addNewQuestion(P917Question* question) { questions.push_back(question); }
  void addNewCropType(CropType* cropType) { cropTypes.push_back(cropType); }
  void addNewProductGroup(ProductGroup* group) { productGroups.push_back(group); }
  /// Keeps a clone, which stays valid after the reader and its document are gone. A later one takes its
  /// place.
  void setP917Metadata(P917Metadata* metadata);

  // Copies of the lists; the pointers in them are borrowed from the document.
  std::vector<Grower*> getGrowerContainer() const { return growers; }
  std::vector<Farm*> getFarmContainer() const { return farms; }
  std::vector<Field*> getFieldContainer() const { return fields; }
  std::vector<ExternalFileReference*> getExternalFileReferenceContainer() const {
    return externalFileReferences;
  }
  std::vector<AttachedFile*> getAttachedFileContainer() const { return attachedFiles; }
  std::vector<Task*> getTaskContainer() const { return tasks; }
  std::vector<Product*> getProductContainer() const { return products; }
  std::vector<ValuePresentation*> getValuePreContainer() const { return valuePresentations; }
  std::vector<P917Question*> getQuestions() const { return questions; }
  std::vector<CropType*> getCropTypeContainer() const { return cropTypes; }
  std::vector<ProductGroup*> getProductGroupContainer() const { return productGroups; }
  /// The last "P917_Metadata" that was completed, in whichever document, or null. Valid until the process
  /// ends.
  P917Metadata* getP917Metadata() const { return p917Metadata; }

  /// The last of the tasks that has the identifier, or null. Borrowed from the document.
  Task* findLastTask(std::string const& id) const;
  /// A record for each task, in the order of `getTaskContainer`.
  std::vector<TaskInfo> getTaskInfoList() const;
  /// A record for each treatment zone of `task`, in document order. Neither the pointer, which must not be
  /// null, nor the task is changed.
  static std::vector<TreatmentZone> getTZNList(Task*& task);
  /// A record for each ring of `rings`, in order; none when no ring is chosen. Neither the pointer, which
  /// must not be null, nor what it points at is changed.
  static std::vector<Polygon> getPolygonList(InnerPolygon*& rings);

 protected:
  // What has been handed over, for derived readers; the elements are borrowed.
  std::vector<Grower*> growers;
  std::vector<Farm*> farms;
  std::vector<Field*> fields;
  std::vector<ExternalFileReference*> externalFileReferences;
  std::vector<AttachedFile*> attachedFiles;
  std::vector<Task*> tasks;
  std::vector<Product*> products;
  std::vector<ValuePresentation*> valuePresentations;
  std::vector<P917Question*> questions;
  P917Metadata* p917Metadata = nullptr;
  std::vector<CropType*> cropTypes;
  std::vector<ProductGroup*> productGroups;
};

}  // namespace lmx
