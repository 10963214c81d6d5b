// clang-format off
// Generated from schema/task_data.toml. Edit the schema, then build the target `schema`.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "GenLibrarySupportFiles/lmxtypes/c_binary.h"
#include "isoxmllib/enums.h"
#include "isoxmllib/fwd.h"

/// A stretch of the children of `TaskData`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerTaskData {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    P917MetadataChosen = 0,
    P917QuestionsChosen = 1,
    AttachedFileChosen = 2,
    BaseStationChosen = 3,
    CodedCommentChosen = 4,
    CodedCommentGroupChosen = 5,
    ColourLegendChosen = 6,
    CropTypeChosen = 7,
    CulturalPracticeChosen = 8,
    GrowerChosen = 9,
    DeviceChosen = 10,
    FarmChosen = 11,
    OperationTechniqueChosen = 12,
    FieldChosen = 13,
    ProductChosen = 14,
    ProductGroupChosen = 15,
    TaskChosen = 16,
    TaskControllerCapabilitiesChosen = 17,
    ValuePresentationChosen = 18,
    WorkerChosen = 19,
    ExternalFileReferenceChosen = 20,
    NothingChosen = 21,
  };

  InnerTaskData();
  InnerTaskData(InnerTaskData const& other);
  /// Leaves `other` behind like a new object.
  InnerTaskData(InnerTaskData&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerTaskData(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerTaskData* clone() const;
  virtual ~InnerTaskData();
  /// Deep; when copying fails the target is unchanged.
  InnerTaskData& operator=(InnerTaskData const& other);
  InnerTaskData& operator=(InnerTaskData&& other) noexcept;
  void swap(InnerTaskData& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `P917Metadata` the alternative held, with no object yet; no effect when it is already.
  void SelectP917Metadata();
  /// The "P917_Metadata". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  P917Metadata const& GetP917Metadata() const;
  P917Metadata& GetP917Metadata();

  /// Makes `P917Questions` the alternative held, with an empty run; no effect when it is already.
  void SelectP917Questions();
  /// The run of "P917_Questions". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  P917Questions const& GetP917Questions(std::size_t index) const;
  P917Questions& GetP917Questions(std::size_t index);
  P917Questions& AppendP917Questions();
  void AppendP917Questions(P917Questions* value);
  P917Questions& InsertP917Questions(std::size_t index);
  void InsertP917Questions(std::size_t index, P917Questions* value);
  void AssignP917Questions(std::size_t index, P917Questions const& value);
  void AssignP917Questions(std::size_t index, P917Questions* value);
  P917Questions& BackP917Questions();
  void DeleteP917Questions(std::size_t index);
  void ClearP917Questions();
  std::size_t SizeP917Questions() const;

  /// Makes `AttachedFile` the alternative held, with an empty run; no effect when it is already.
  void SelectAttachedFile();
  /// The run of "AFE". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  AttachedFile const& GetAttachedFile(std::size_t index) const;
  AttachedFile& GetAttachedFile(std::size_t index);
  AttachedFile& AppendAttachedFile();
  void AppendAttachedFile(AttachedFile* value);
  AttachedFile& InsertAttachedFile(std::size_t index);
  void InsertAttachedFile(std::size_t index, AttachedFile* value);
  void AssignAttachedFile(std::size_t index, AttachedFile const& value);
  void AssignAttachedFile(std::size_t index, AttachedFile* value);
  AttachedFile& BackAttachedFile();
  void DeleteAttachedFile(std::size_t index);
  void ClearAttachedFile();
  std::size_t SizeAttachedFile() const;

  /// Makes `BaseStation` the alternative held, with an empty run; no effect when it is already.
  void SelectBaseStation();
  /// The run of "BSN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  BaseStation const& GetBaseStation(std::size_t index) const;
  BaseStation& GetBaseStation(std::size_t index);
  BaseStation& AppendBaseStation();
  void AppendBaseStation(BaseStation* value);
  BaseStation& InsertBaseStation(std::size_t index);
  void InsertBaseStation(std::size_t index, BaseStation* value);
  void AssignBaseStation(std::size_t index, BaseStation const& value);
  void AssignBaseStation(std::size_t index, BaseStation* value);
  BaseStation& BackBaseStation();
  void DeleteBaseStation(std::size_t index);
  void ClearBaseStation();
  std::size_t SizeBaseStation() const;

  /// Makes `CodedComment` the alternative held, with an empty run; no effect when it is already.
  void SelectCodedComment();
  /// The run of "CCT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CodedComment const& GetCodedComment(std::size_t index) const;
  CodedComment& GetCodedComment(std::size_t index);
  CodedComment& AppendCodedComment();
  void AppendCodedComment(CodedComment* value);
  CodedComment& InsertCodedComment(std::size_t index);
  void InsertCodedComment(std::size_t index, CodedComment* value);
  void AssignCodedComment(std::size_t index, CodedComment const& value);
  void AssignCodedComment(std::size_t index, CodedComment* value);
  CodedComment& BackCodedComment();
  void DeleteCodedComment(std::size_t index);
  void ClearCodedComment();
  std::size_t SizeCodedComment() const;

  /// Makes `CodedCommentGroup` the alternative held, with an empty run; no effect when it is already.
  void SelectCodedCommentGroup();
  /// The run of "CCG". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CoddedCommentGroup const& GetCodedCommentGroup(std::size_t index) const;
  CoddedCommentGroup& GetCodedCommentGroup(std::size_t index);
  CoddedCommentGroup& AppendCodedCommentGroup();
  void AppendCodedCommentGroup(CoddedCommentGroup* value);
  CoddedCommentGroup& InsertCodedCommentGroup(std::size_t index);
  void InsertCodedCommentGroup(std::size_t index, CoddedCommentGroup* value);
  void AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup const& value);
  void AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup* value);
  CoddedCommentGroup& BackCodedCommentGroup();
  void DeleteCodedCommentGroup(std::size_t index);
  void ClearCodedCommentGroup();
  std::size_t SizeCodedCommentGroup() const;

  /// Makes `ColourLegend` the alternative held, with an empty run; no effect when it is already.
  void SelectColourLegend();
  /// The run of "CLD". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ColourLegend const& GetColourLegend(std::size_t index) const;
  ColourLegend& GetColourLegend(std::size_t index);
  ColourLegend& AppendColourLegend();
  void AppendColourLegend(ColourLegend* value);
  ColourLegend& InsertColourLegend(std::size_t index);
  void InsertColourLegend(std::size_t index, ColourLegend* value);
  void AssignColourLegend(std::size_t index, ColourLegend const& value);
  void AssignColourLegend(std::size_t index, ColourLegend* value);
  ColourLegend& BackColourLegend();
  void DeleteColourLegend(std::size_t index);
  void ClearColourLegend();
  std::size_t SizeColourLegend() const;

  /// Makes `CropType` the alternative held, with an empty run; no effect when it is already.
  void SelectCropType();
  /// The run of "CTP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CropType const& GetCropType(std::size_t index) const;
  CropType& GetCropType(std::size_t index);
  CropType& AppendCropType();
  void AppendCropType(CropType* value);
  CropType& InsertCropType(std::size_t index);
  void InsertCropType(std::size_t index, CropType* value);
  void AssignCropType(std::size_t index, CropType const& value);
  void AssignCropType(std::size_t index, CropType* value);
  CropType& BackCropType();
  void DeleteCropType(std::size_t index);
  void ClearCropType();
  std::size_t SizeCropType() const;

  /// Makes `CulturalPractice` the alternative held, with an empty run; no effect when it is already.
  void SelectCulturalPractice();
  /// The run of "CPC". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CulturalPractice const& GetCulturalPractice(std::size_t index) const;
  CulturalPractice& GetCulturalPractice(std::size_t index);
  CulturalPractice& AppendCulturalPractice();
  void AppendCulturalPractice(CulturalPractice* value);
  CulturalPractice& InsertCulturalPractice(std::size_t index);
  void InsertCulturalPractice(std::size_t index, CulturalPractice* value);
  void AssignCulturalPractice(std::size_t index, CulturalPractice const& value);
  void AssignCulturalPractice(std::size_t index, CulturalPractice* value);
  CulturalPractice& BackCulturalPractice();
  void DeleteCulturalPractice(std::size_t index);
  void ClearCulturalPractice();
  std::size_t SizeCulturalPractice() const;

  /// Makes `Grower` the alternative held, with an empty run; no effect when it is already.
  void SelectGrower();
  /// The run of "CTR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Grower const& GetGrower(std::size_t index) const;
  Grower& GetGrower(std::size_t index);
  Grower& AppendGrower();
  void AppendGrower(Grower* value);
  Grower& InsertGrower(std::size_t index);
  void InsertGrower(std::size_t index, Grower* value);
  void AssignGrower(std::size_t index, Grower const& value);
  void AssignGrower(std::size_t index, Grower* value);
  Grower& BackGrower();
  void DeleteGrower(std::size_t index);
  void ClearGrower();
  std::size_t SizeGrower() const;

  /// Makes `Device` the alternative held, with an empty run; no effect when it is already.
  void SelectDevice();
  /// The run of "DVC". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Device const& GetDevice(std::size_t index) const;
  Device& GetDevice(std::size_t index);
  Device& AppendDevice();
  void AppendDevice(Device* value);
  Device& InsertDevice(std::size_t index);
  void InsertDevice(std::size_t index, Device* value);
  void AssignDevice(std::size_t index, Device const& value);
  void AssignDevice(std::size_t index, Device* value);
  Device& BackDevice();
  void DeleteDevice(std::size_t index);
  void ClearDevice();
  std::size_t SizeDevice() const;

  /// Makes `Farm` the alternative held, with an empty run; no effect when it is already.
  void SelectFarm();
  /// The run of "FRM". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Farm const& GetFarm(std::size_t index) const;
  Farm& GetFarm(std::size_t index);
  Farm& AppendFarm();
  void AppendFarm(Farm* value);
  Farm& InsertFarm(std::size_t index);
  void InsertFarm(std::size_t index, Farm* value);
  void AssignFarm(std::size_t index, Farm const& value);
  void AssignFarm(std::size_t index, Farm* value);
  Farm& BackFarm();
  void DeleteFarm(std::size_t index);
  void ClearFarm();
  std::size_t SizeFarm() const;

  /// Makes `OperationTechnique` the alternative held, with an empty run; no effect when it is already.
  void SelectOperationTechnique();
  /// The run of "OTQ". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  OperationTechnique const& GetOperationTechnique(std::size_t index) const;
  OperationTechnique& GetOperationTechnique(std::size_t index);
  OperationTechnique& AppendOperationTechnique();
  void AppendOperationTechnique(OperationTechnique* value);
  OperationTechnique& InsertOperationTechnique(std::size_t index);
  void InsertOperationTechnique(std::size_t index, OperationTechnique* value);
  void AssignOperationTechnique(std::size_t index, OperationTechnique const& value);
  void AssignOperationTechnique(std::size_t index, OperationTechnique* value);
  OperationTechnique& BackOperationTechnique();
  void DeleteOperationTechnique(std::size_t index);
  void ClearOperationTechnique();
  std::size_t SizeOperationTechnique() const;

  /// Makes `Field` the alternative held, with an empty run; no effect when it is already.
  void SelectField();
  /// The run of "PFD". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Field const& GetField(std::size_t index) const;
  Field& GetField(std::size_t index);
  Field& AppendField();
  void AppendField(Field* value);
  Field& InsertField(std::size_t index);
  void InsertField(std::size_t index, Field* value);
  void AssignField(std::size_t index, Field const& value);
  void AssignField(std::size_t index, Field* value);
  Field& BackField();
  void DeleteField(std::size_t index);
  void ClearField();
  std::size_t SizeField() const;

  /// Makes `Product` the alternative held, with an empty run; no effect when it is already.
  void SelectProduct();
  /// The run of "PDT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Product const& GetProduct(std::size_t index) const;
  Product& GetProduct(std::size_t index);
  Product& AppendProduct();
  void AppendProduct(Product* value);
  Product& InsertProduct(std::size_t index);
  void InsertProduct(std::size_t index, Product* value);
  void AssignProduct(std::size_t index, Product const& value);
  void AssignProduct(std::size_t index, Product* value);
  Product& BackProduct();
  void DeleteProduct(std::size_t index);
  void ClearProduct();
  std::size_t SizeProduct() const;

  /// Makes `ProductGroup` the alternative held, with an empty run; no effect when it is already.
  void SelectProductGroup();
  /// The run of "PGP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ProductGroup const& GetProductGroup(std::size_t index) const;
  ProductGroup& GetProductGroup(std::size_t index);
  ProductGroup& AppendProductGroup();
  void AppendProductGroup(ProductGroup* value);
  ProductGroup& InsertProductGroup(std::size_t index);
  void InsertProductGroup(std::size_t index, ProductGroup* value);
  void AssignProductGroup(std::size_t index, ProductGroup const& value);
  void AssignProductGroup(std::size_t index, ProductGroup* value);
  ProductGroup& BackProductGroup();
  void DeleteProductGroup(std::size_t index);
  void ClearProductGroup();
  std::size_t SizeProductGroup() const;

  /// Makes `Task` the alternative held, with an empty run; no effect when it is already.
  void SelectTask();
  /// The run of "TSK". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Task const& GetTask(std::size_t index) const;
  Task& GetTask(std::size_t index);
  Task& AppendTask();
  void AppendTask(Task* value);
  Task& InsertTask(std::size_t index);
  void InsertTask(std::size_t index, Task* value);
  void AssignTask(std::size_t index, Task const& value);
  void AssignTask(std::size_t index, Task* value);
  Task& BackTask();
  void DeleteTask(std::size_t index);
  void ClearTask();
  std::size_t SizeTask() const;

  /// Makes `TaskControllerCapabilities` the alternative held, with no object yet; no effect when it is already.
  void SelectTaskControllerCapabilities();
  /// The "TCC". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  TaskControllerCapabilities const& GetTaskControllerCapabilities() const;
  TaskControllerCapabilities& GetTaskControllerCapabilities();

  /// Makes `ValuePresentation` the alternative held, with an empty run; no effect when it is already.
  void SelectValuePresentation();
  /// The run of "VPN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ValuePresentation const& GetValuePresentation(std::size_t index) const;
  ValuePresentation& GetValuePresentation(std::size_t index);
  ValuePresentation& AppendValuePresentation();
  void AppendValuePresentation(ValuePresentation* value);
  ValuePresentation& InsertValuePresentation(std::size_t index);
  void InsertValuePresentation(std::size_t index, ValuePresentation* value);
  void AssignValuePresentation(std::size_t index, ValuePresentation const& value);
  void AssignValuePresentation(std::size_t index, ValuePresentation* value);
  ValuePresentation& BackValuePresentation();
  void DeleteValuePresentation(std::size_t index);
  void ClearValuePresentation();
  std::size_t SizeValuePresentation() const;

  /// Makes `Worker` the alternative held, with an empty run; no effect when it is already.
  void SelectWorker();
  /// The run of "WKR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Worker const& GetWorker(std::size_t index) const;
  Worker& GetWorker(std::size_t index);
  Worker& AppendWorker();
  void AppendWorker(Worker* value);
  Worker& InsertWorker(std::size_t index);
  void InsertWorker(std::size_t index, Worker* value);
  void AssignWorker(std::size_t index, Worker const& value);
  void AssignWorker(std::size_t index, Worker* value);
  Worker& BackWorker();
  void DeleteWorker(std::size_t index);
  void ClearWorker();
  std::size_t SizeWorker() const;

  /// Makes `ExternalFileReference` the alternative held, with an empty run; no effect when it is already.
  void SelectExternalFileReference();
  /// The run of "XFR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ExternalFileReference const& GetExternalFileReference(std::size_t index) const;
  ExternalFileReference& GetExternalFileReference(std::size_t index);
  ExternalFileReference& AppendExternalFileReference();
  void AppendExternalFileReference(ExternalFileReference* value);
  ExternalFileReference& InsertExternalFileReference(std::size_t index);
  void InsertExternalFileReference(std::size_t index, ExternalFileReference* value);
  void AssignExternalFileReference(std::size_t index, ExternalFileReference const& value);
  void AssignExternalFileReference(std::size_t index, ExternalFileReference* value);
  ExternalFileReference& BackExternalFileReference();
  void DeleteExternalFileReference(std::size_t index);
  void ClearExternalFileReference();
  std::size_t SizeExternalFileReference() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// TaskData, element "ISO11783_TaskData". Root of the main document of a transfer set. It carries the header
/// data and all top-level lists.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API TaskData {
 public:
  TaskData();
  TaskData(TaskData const& other);
  /// Leaves `other` behind like a new object.
  TaskData(TaskData&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  TaskData(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual TaskData* clone() const;
  virtual ~TaskData();
  /// Deep; when copying fails the target is unchanged.
  TaskData& operator=(TaskData const& other);
  TaskData& operator=(TaskData&& other) noexcept;
  void swap(TaskData& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Major version of the format, such as 4. Attribute "VersionMajor", required.
  lmx::elmx_error SetVersionMajor(std::string const& value) { return m_VersionMajor.set(value); }
  std::string const& GetVersionMajor() const { return m_VersionMajor.get(); }
  bool IssetVersionMajor() const { return m_VersionMajor.is_set(); }
  void UnsetVersionMajor() { m_VersionMajor.unset(); }

  /// Minor version of the format. Attribute "VersionMinor", required.
  lmx::elmx_error SetVersionMinor(std::string const& value) { return m_VersionMinor.set(value); }
  std::string const& GetVersionMinor() const { return m_VersionMinor.get(); }
  bool IssetVersionMinor() const { return m_VersionMinor.is_set(); }
  void UnsetVersionMinor() { m_VersionMinor.unset(); }

  /// Maker of the farm management software. Attribute "ManagementSoftwareManufacturer", required; at most 32
  /// characters.
  lmx::elmx_error SetManagementSoftwareManufacturer(std::string const& value) { return m_ManagementSoftwareManufacturer.set(value); }
  std::string const& GetManagementSoftwareManufacturer() const { return m_ManagementSoftwareManufacturer.get(); }
  bool IssetManagementSoftwareManufacturer() const { return m_ManagementSoftwareManufacturer.is_set(); }
  void UnsetManagementSoftwareManufacturer() { m_ManagementSoftwareManufacturer.unset(); }

  /// Version text of the farm management software. Attribute "ManagementSoftwareVersion", required; at most
  /// 32 characters.
  lmx::elmx_error SetManagementSoftwareVersion(std::string const& value) { return m_ManagementSoftwareVersion.set(value); }
  std::string const& GetManagementSoftwareVersion() const { return m_ManagementSoftwareVersion.get(); }
  bool IssetManagementSoftwareVersion() const { return m_ManagementSoftwareVersion.is_set(); }
  void UnsetManagementSoftwareVersion() { m_ManagementSoftwareVersion.unset(); }

  /// Maker of the task controller. Attribute "TaskControllerManufacturer", optional; at most 32 characters.
  lmx::elmx_error SetTaskControllerManufacturer(std::string const& value) { return m_TaskControllerManufacturer.set(value); }
  std::string const& GetTaskControllerManufacturer() const { return m_TaskControllerManufacturer.get(); }
  bool IssetTaskControllerManufacturer() const { return m_TaskControllerManufacturer.is_set(); }
  void UnsetTaskControllerManufacturer() { m_TaskControllerManufacturer.unset(); }

  /// Version text of the task controller. Attribute "TaskControllerVersion", optional; at most 32 characters.
  lmx::elmx_error SetTaskControllerVersion(std::string const& value) { return m_TaskControllerVersion.set(value); }
  std::string const& GetTaskControllerVersion() const { return m_TaskControllerVersion.get(); }
  bool IssetTaskControllerVersion() const { return m_TaskControllerVersion.is_set(); }
  void UnsetTaskControllerVersion() { m_TaskControllerVersion.unset(); }

  /// Side that wrote the data: 1 farm management software, 2 task controller. Attribute "DataTransferOrigin",
  /// required; one of "1", "2".
  lmx::elmx_error SetDataTransferOrigin(std::string const& value) { return m_DataTransferOrigin.set(value); }
  std::string const& GetDataTransferOrigin() const { return m_DataTransferOrigin.get(); }
  bool IssetDataTransferOrigin() const { return m_DataTransferOrigin.is_set(); }
  void UnsetDataTransferOrigin() { m_DataTransferOrigin.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumDataTransferOrigin() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumDataTransferOrigin(elmx_enums code);

  /// Language that applies to the document. Attribute "lang", optional; at most 32 characters.
  lmx::elmx_error SetLanguage(std::string const& value) { return m_Language.set(value); }
  std::string const& GetLanguage() const { return m_Language.get(); }
  bool IssetLanguage() const { return m_Language.is_set(); }
  void UnsetLanguage() { m_Language.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerTaskData const& GetInnerTaskData(std::size_t index) const;
  InnerTaskData& GetInnerTaskData(std::size_t index);
  InnerTaskData& AppendInnerTaskData();
  void AppendInnerTaskData(InnerTaskData* value);
  InnerTaskData& InsertInnerTaskData(std::size_t index);
  void InsertInnerTaskData(std::size_t index, InnerTaskData* value);
  void AssignInnerTaskData(std::size_t index, InnerTaskData const& value);
  void AssignInnerTaskData(std::size_t index, InnerTaskData* value);
  InnerTaskData& BackInnerTaskData();
  void DeleteInnerTaskData(std::size_t index);
  void ClearInnerTaskData();
  std::size_t SizeInnerTaskData() const;

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_VersionMajor;
  lmx::ct_simple_pod_single<std::string> m_VersionMinor;
  lmx::ct_simple_pod_single<std::string> m_ManagementSoftwareManufacturer;
  lmx::ct_simple_pod_single<std::string> m_ManagementSoftwareVersion;
  lmx::ct_simple_pod_optional<std::string> m_TaskControllerManufacturer;
  lmx::ct_simple_pod_optional<std::string> m_TaskControllerVersion;
  lmx::ct_simple_pod_single<std::string> m_DataTransferOrigin;
  lmx::ct_simple_pod_optional<std::string> m_Language;
  lmx::ct_complex_multi<InnerTaskData> mInnerTaskData;
};

/// A stretch of the children of `ExternalFileContent`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerExternalFileContent {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    BaseStationChosen = 0,
    CodedCommentChosen = 1,
    CodedCommentGroupChosen = 2,
    ColourLegendChosen = 3,
    CropTypeChosen = 4,
    CulturalPracticeChosen = 5,
    GrowerChosen = 6,
    DeviceChosen = 7,
    FarmChosen = 8,
    OperationTechniqueChosen = 9,
    FieldChosen = 10,
    ProductChosen = 11,
    ProductGroupChosen = 12,
    TaskChosen = 13,
    ValuePresentationChosen = 14,
    WorkerChosen = 15,
    NothingChosen = 16,
  };

  InnerExternalFileContent();
  InnerExternalFileContent(InnerExternalFileContent const& other);
  /// Leaves `other` behind like a new object.
  InnerExternalFileContent(InnerExternalFileContent&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerExternalFileContent(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerExternalFileContent* clone() const;
  virtual ~InnerExternalFileContent();
  /// Deep; when copying fails the target is unchanged.
  InnerExternalFileContent& operator=(InnerExternalFileContent const& other);
  InnerExternalFileContent& operator=(InnerExternalFileContent&& other) noexcept;
  void swap(InnerExternalFileContent& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `BaseStation` the alternative held, with an empty run; no effect when it is already.
  void SelectBaseStation();
  /// The run of "BSN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  BaseStation const& GetBaseStation(std::size_t index) const;
  BaseStation& GetBaseStation(std::size_t index);
  BaseStation& AppendBaseStation();
  void AppendBaseStation(BaseStation* value);
  BaseStation& InsertBaseStation(std::size_t index);
  void InsertBaseStation(std::size_t index, BaseStation* value);
  void AssignBaseStation(std::size_t index, BaseStation const& value);
  void AssignBaseStation(std::size_t index, BaseStation* value);
  BaseStation& BackBaseStation();
  void DeleteBaseStation(std::size_t index);
  void ClearBaseStation();
  std::size_t SizeBaseStation() const;

  /// Makes `CodedComment` the alternative held, with an empty run; no effect when it is already.
  void SelectCodedComment();
  /// The run of "CCT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CodedComment const& GetCodedComment(std::size_t index) const;
  CodedComment& GetCodedComment(std::size_t index);
  CodedComment& AppendCodedComment();
  void AppendCodedComment(CodedComment* value);
  CodedComment& InsertCodedComment(std::size_t index);
  void InsertCodedComment(std::size_t index, CodedComment* value);
  void AssignCodedComment(std::size_t index, CodedComment const& value);
  void AssignCodedComment(std::size_t index, CodedComment* value);
  CodedComment& BackCodedComment();
  void DeleteCodedComment(std::size_t index);
  void ClearCodedComment();
  std::size_t SizeCodedComment() const;

  /// Makes `CodedCommentGroup` the alternative held, with an empty run; no effect when it is already.
  void SelectCodedCommentGroup();
  /// The run of "CCG". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CoddedCommentGroup const& GetCodedCommentGroup(std::size_t index) const;
  CoddedCommentGroup& GetCodedCommentGroup(std::size_t index);
  CoddedCommentGroup& AppendCodedCommentGroup();
  void AppendCodedCommentGroup(CoddedCommentGroup* value);
  CoddedCommentGroup& InsertCodedCommentGroup(std::size_t index);
  void InsertCodedCommentGroup(std::size_t index, CoddedCommentGroup* value);
  void AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup const& value);
  void AssignCodedCommentGroup(std::size_t index, CoddedCommentGroup* value);
  CoddedCommentGroup& BackCodedCommentGroup();
  void DeleteCodedCommentGroup(std::size_t index);
  void ClearCodedCommentGroup();
  std::size_t SizeCodedCommentGroup() const;

  /// Makes `ColourLegend` the alternative held, with an empty run; no effect when it is already.
  void SelectColourLegend();
  /// The run of "CLD". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ColourLegend const& GetColourLegend(std::size_t index) const;
  ColourLegend& GetColourLegend(std::size_t index);
  ColourLegend& AppendColourLegend();
  void AppendColourLegend(ColourLegend* value);
  ColourLegend& InsertColourLegend(std::size_t index);
  void InsertColourLegend(std::size_t index, ColourLegend* value);
  void AssignColourLegend(std::size_t index, ColourLegend const& value);
  void AssignColourLegend(std::size_t index, ColourLegend* value);
  ColourLegend& BackColourLegend();
  void DeleteColourLegend(std::size_t index);
  void ClearColourLegend();
  std::size_t SizeColourLegend() const;

  /// Makes `CropType` the alternative held, with an empty run; no effect when it is already.
  void SelectCropType();
  /// The run of "CTP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CropType const& GetCropType(std::size_t index) const;
  CropType& GetCropType(std::size_t index);
  CropType& AppendCropType();
  void AppendCropType(CropType* value);
  CropType& InsertCropType(std::size_t index);
  void InsertCropType(std::size_t index, CropType* value);
  void AssignCropType(std::size_t index, CropType const& value);
  void AssignCropType(std::size_t index, CropType* value);
  CropType& BackCropType();
  void DeleteCropType(std::size_t index);
  void ClearCropType();
  std::size_t SizeCropType() const;

  /// Makes `CulturalPractice` the alternative held, with an empty run; no effect when it is already.
  void SelectCulturalPractice();
  /// The run of "CPC". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CulturalPractice const& GetCulturalPractice(std::size_t index) const;
  CulturalPractice& GetCulturalPractice(std::size_t index);
  CulturalPractice& AppendCulturalPractice();
  void AppendCulturalPractice(CulturalPractice* value);
  CulturalPractice& InsertCulturalPractice(std::size_t index);
  void InsertCulturalPractice(std::size_t index, CulturalPractice* value);
  void AssignCulturalPractice(std::size_t index, CulturalPractice const& value);
  void AssignCulturalPractice(std::size_t index, CulturalPractice* value);
  CulturalPractice& BackCulturalPractice();
  void DeleteCulturalPractice(std::size_t index);
  void ClearCulturalPractice();
  std::size_t SizeCulturalPractice() const;

  /// Makes `Grower` the alternative held, with an empty run; no effect when it is already.
  void SelectGrower();
  /// The run of "CTR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Grower const& GetGrower(std::size_t index) const;
  Grower& GetGrower(std::size_t index);
  Grower& AppendGrower();
  void AppendGrower(Grower* value);
  Grower& InsertGrower(std::size_t index);
  void InsertGrower(std::size_t index, Grower* value);
  void AssignGrower(std::size_t index, Grower const& value);
  void AssignGrower(std::size_t index, Grower* value);
  Grower& BackGrower();
  void DeleteGrower(std::size_t index);
  void ClearGrower();
  std::size_t SizeGrower() const;

  /// Makes `Device` the alternative held, with an empty run; no effect when it is already.
  void SelectDevice();
  /// The run of "DVC". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Device const& GetDevice(std::size_t index) const;
  Device& GetDevice(std::size_t index);
  Device& AppendDevice();
  void AppendDevice(Device* value);
  Device& InsertDevice(std::size_t index);
  void InsertDevice(std::size_t index, Device* value);
  void AssignDevice(std::size_t index, Device const& value);
  void AssignDevice(std::size_t index, Device* value);
  Device& BackDevice();
  void DeleteDevice(std::size_t index);
  void ClearDevice();
  std::size_t SizeDevice() const;

  /// Makes `Farm` the alternative held, with an empty run; no effect when it is already.
  void SelectFarm();
  /// The run of "FRM". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Farm const& GetFarm(std::size_t index) const;
  Farm& GetFarm(std::size_t index);
  Farm& AppendFarm();
  void AppendFarm(Farm* value);
  Farm& InsertFarm(std::size_t index);
  void InsertFarm(std::size_t index, Farm* value);
  void AssignFarm(std::size_t index, Farm const& value);
  void AssignFarm(std::size_t index, Farm* value);
  Farm& BackFarm();
  void DeleteFarm(std::size_t index);
  void ClearFarm();
  std::size_t SizeFarm() const;

  /// Makes `OperationTechnique` the alternative held, with an empty run; no effect when it is already.
  void SelectOperationTechnique();
  /// The run of "OTQ". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  OperationTechnique const& GetOperationTechnique(std::size_t index) const;
  OperationTechnique& GetOperationTechnique(std::size_t index);
  OperationTechnique& AppendOperationTechnique();
  void AppendOperationTechnique(OperationTechnique* value);
  OperationTechnique& InsertOperationTechnique(std::size_t index);
  void InsertOperationTechnique(std::size_t index, OperationTechnique* value);
  void AssignOperationTechnique(std::size_t index, OperationTechnique const& value);
  void AssignOperationTechnique(std::size_t index, OperationTechnique* value);
  OperationTechnique& BackOperationTechnique();
  void DeleteOperationTechnique(std::size_t index);
  void ClearOperationTechnique();
  std::size_t SizeOperationTechnique() const;

  /// Makes `Field` the alternative held, with an empty run; no effect when it is already.
  void SelectField();
  /// The run of "PFD". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Field const& GetField(std::size_t index) const;
  Field& GetField(std::size_t index);
  Field& AppendField();
  void AppendField(Field* value);
  Field& InsertField(std::size_t index);
  void InsertField(std::size_t index, Field* value);
  void AssignField(std::size_t index, Field const& value);
  void AssignField(std::size_t index, Field* value);
  Field& BackField();
  void DeleteField(std::size_t index);
  void ClearField();
  std::size_t SizeField() const;

  /// Makes `Product` the alternative held, with an empty run; no effect when it is already.
  void SelectProduct();
  /// The run of "PDT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Product const& GetProduct(std::size_t index) const;
  Product& GetProduct(std::size_t index);
  Product& AppendProduct();
  void AppendProduct(Product* value);
  Product& InsertProduct(std::size_t index);
  void InsertProduct(std::size_t index, Product* value);
  void AssignProduct(std::size_t index, Product const& value);
  void AssignProduct(std::size_t index, Product* value);
  Product& BackProduct();
  void DeleteProduct(std::size_t index);
  void ClearProduct();
  std::size_t SizeProduct() const;

  /// Makes `ProductGroup` the alternative held, with an empty run; no effect when it is already.
  void SelectProductGroup();
  /// The run of "PGP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ProductGroup const& GetProductGroup(std::size_t index) const;
  ProductGroup& GetProductGroup(std::size_t index);
  ProductGroup& AppendProductGroup();
  void AppendProductGroup(ProductGroup* value);
  ProductGroup& InsertProductGroup(std::size_t index);
  void InsertProductGroup(std::size_t index, ProductGroup* value);
  void AssignProductGroup(std::size_t index, ProductGroup const& value);
  void AssignProductGroup(std::size_t index, ProductGroup* value);
  ProductGroup& BackProductGroup();
  void DeleteProductGroup(std::size_t index);
  void ClearProductGroup();
  std::size_t SizeProductGroup() const;

  /// Makes `Task` the alternative held, with an empty run; no effect when it is already.
  void SelectTask();
  /// The run of "TSK". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Task const& GetTask(std::size_t index) const;
  Task& GetTask(std::size_t index);
  Task& AppendTask();
  void AppendTask(Task* value);
  Task& InsertTask(std::size_t index);
  void InsertTask(std::size_t index, Task* value);
  void AssignTask(std::size_t index, Task const& value);
  void AssignTask(std::size_t index, Task* value);
  Task& BackTask();
  void DeleteTask(std::size_t index);
  void ClearTask();
  std::size_t SizeTask() const;

  /// Makes `ValuePresentation` the alternative held, with an empty run; no effect when it is already.
  void SelectValuePresentation();
  /// The run of "VPN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ValuePresentation const& GetValuePresentation(std::size_t index) const;
  ValuePresentation& GetValuePresentation(std::size_t index);
  ValuePresentation& AppendValuePresentation();
  void AppendValuePresentation(ValuePresentation* value);
  ValuePresentation& InsertValuePresentation(std::size_t index);
  void InsertValuePresentation(std::size_t index, ValuePresentation* value);
  void AssignValuePresentation(std::size_t index, ValuePresentation const& value);
  void AssignValuePresentation(std::size_t index, ValuePresentation* value);
  ValuePresentation& BackValuePresentation();
  void DeleteValuePresentation(std::size_t index);
  void ClearValuePresentation();
  std::size_t SizeValuePresentation() const;

  /// Makes `Worker` the alternative held, with an empty run; no effect when it is already.
  void SelectWorker();
  /// The run of "WKR". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Worker const& GetWorker(std::size_t index) const;
  Worker& GetWorker(std::size_t index);
  Worker& AppendWorker();
  void AppendWorker(Worker* value);
  Worker& InsertWorker(std::size_t index);
  void InsertWorker(std::size_t index, Worker* value);
  void AssignWorker(std::size_t index, Worker const& value);
  void AssignWorker(std::size_t index, Worker* value);
  Worker& BackWorker();
  void DeleteWorker(std::size_t index);
  void ClearWorker();
  std::size_t SizeWorker() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// ExternalFileContent, element "XFC". Root of an external file. It holds a part of the top-level lists that
/// was moved out of the main document.
class ISOXML_API ExternalFileContent {
 public:
  ExternalFileContent();
  ExternalFileContent(ExternalFileContent const& other);
  /// Leaves `other` behind like a new object.
  ExternalFileContent(ExternalFileContent&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ExternalFileContent(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ExternalFileContent* clone() const;
  virtual ~ExternalFileContent();
  /// Deep; when copying fails the target is unchanged.
  ExternalFileContent& operator=(ExternalFileContent const& other);
  ExternalFileContent& operator=(ExternalFileContent&& other) noexcept;
  void swap(ExternalFileContent& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerExternalFileContent const& GetInnerExternalFileContent(std::size_t index) const;
  InnerExternalFileContent& GetInnerExternalFileContent(std::size_t index);
  InnerExternalFileContent& AppendInnerExternalFileContent();
  void AppendInnerExternalFileContent(InnerExternalFileContent* value);
  InnerExternalFileContent& InsertInnerExternalFileContent(std::size_t index);
  void InsertInnerExternalFileContent(std::size_t index, InnerExternalFileContent* value);
  void AssignInnerExternalFileContent(std::size_t index, InnerExternalFileContent const& value);
  void AssignInnerExternalFileContent(std::size_t index, InnerExternalFileContent* value);
  InnerExternalFileContent& BackInnerExternalFileContent();
  void DeleteInnerExternalFileContent(std::size_t index);
  void ClearInnerExternalFileContent();
  std::size_t SizeInnerExternalFileContent() const;

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_complex_multi<InnerExternalFileContent> mInnerExternalFileContent;
};

/// ExternalFileReference, element "XFR". Names an external file whose lists belong to this document as if
/// they stood here.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ExternalFileReference {
 public:
  ExternalFileReference();
  ExternalFileReference(ExternalFileReference const& other);
  /// Leaves `other` behind like a new object.
  ExternalFileReference(ExternalFileReference&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ExternalFileReference(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ExternalFileReference* clone() const;
  virtual ~ExternalFileReference();
  /// Deep; when copying fails the target is unchanged.
  ExternalFileReference& operator=(ExternalFileReference const& other);
  ExternalFileReference& operator=(ExternalFileReference&& other) noexcept;
  void swap(ExternalFileReference& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Name of the external file without its extension: the list's three letters and five digits. Attribute
  /// "A", required; 8 characters, pattern
  /// (BSN|CCG|CCT|CLD|CPC|CTP|CTR|DVC|FRM|OTQ|PDT|PFD|PGP|TSK|VPN|WKR)[0-9][0-9][0-9][0-9][0-9].
  lmx::elmx_error SetFileName(std::string const& value) { return m_FileName.set(value); }
  std::string const& GetFileName() const { return m_FileName.get(); }
  bool IssetFileName() const { return m_FileName.is_set(); }
  void UnsetFileName() { m_FileName.unset(); }

  /// Format of the external file: 1 XML. Attribute "B", required; one of "1".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_FileName;
  lmx::ct_simple_pod_single<std::string> m_Type;
};

/// AttachedFile, element "AFE". Names a file that travels with the transfer set and is not itself task data,
/// such as the link list.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API AttachedFile {
 public:
  AttachedFile();
  AttachedFile(AttachedFile const& other);
  /// Leaves `other` behind like a new object.
  AttachedFile(AttachedFile&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  AttachedFile(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual AttachedFile* clone() const;
  virtual ~AttachedFile();
  /// Deep; when copying fails the target is unchanged.
  AttachedFile& operator=(AttachedFile const& other);
  AttachedFile& operator=(AttachedFile&& other) noexcept;
  void swap(AttachedFile& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Name of the attached file, eight characters and an extension of three. Attribute "A", required; 12
  /// characters, pattern ([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}.
  lmx::elmx_error SetFileNameWithExtension(std::string const& value) { return m_FileNameWithExtension.set(value); }
  std::string const& GetFileNameWithExtension() const { return m_FileNameWithExtension.get(); }
  bool IssetFileNameWithExtension() const { return m_FileNameWithExtension.is_set(); }
  void UnsetFileNameWithExtension() { m_FileNameWithExtension.unset(); }

  /// Whether the task controller has to keep the file for the way back: 1 need not, 2 must. Attribute "B",
  /// required; one of "1", "2".
  lmx::elmx_error SetPreserve(std::string const& value) { return m_Preserve.set(value); }
  std::string const& GetPreserve() const { return m_Preserve.get(); }
  bool IssetPreserve() const { return m_Preserve.is_set(); }
  void UnsetPreserve() { m_Preserve.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumPreserve() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumPreserve(elmx_enums code);

  /// Global Location Number of the manufacturer that defines the file. Attribute "C", required; at most 32
  /// characters.
  lmx::elmx_error SetManufacturerGLN(std::string const& value) { return m_ManufacturerGLN.set(value); }
  std::string const& GetManufacturerGLN() const { return m_ManufacturerGLN.get(); }
  bool IssetManufacturerGLN() const { return m_ManufacturerGLN.is_set(); }
  void UnsetManufacturerGLN() { m_ManufacturerGLN.unset(); }

  /// Kind of the attached file: 1 is the link list document. Attribute "D", required; 1 to 254.
  lmx::elmx_error SetType(unsigned char const& value) { return m_Type.set(value); }
  unsigned char const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }

  /// Version text of the attached file. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetFileVersion(std::string const& value) { return m_FileVersion.set(value); }
  std::string const& GetFileVersion() const { return m_FileVersion.get(); }
  bool IssetFileVersion() const { return m_FileVersion.is_set(); }
  void UnsetFileVersion() { m_FileVersion.unset(); }

  /// Length of the attached file in bytes. Attribute "F", optional; 0 to 4294967294.
  lmx::elmx_error SetFileLength(unsigned int const& value) { return m_FileLength.set(value); }
  unsigned int const& GetFileLength() const { return m_FileLength.get(); }
  bool IssetFileLength() const { return m_FileLength.is_set(); }
  void UnsetFileLength() { m_FileLength.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_FileNameWithExtension;
  lmx::ct_simple_pod_single<std::string> m_Preserve;
  lmx::ct_simple_pod_single<std::string> m_ManufacturerGLN;
  lmx::ct_simple_pod_single<unsigned char> m_Type;
  lmx::ct_simple_pod_optional<std::string> m_FileVersion;
  lmx::ct_simple_pod_optional<unsigned int> m_FileLength;
};

/// TaskControllerCapabilities, element "TCC". States what a task controller can do, so that the management
/// software can plan within its limits.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API TaskControllerCapabilities {
 public:
  TaskControllerCapabilities();
  TaskControllerCapabilities(TaskControllerCapabilities const& other);
  /// Leaves `other` behind like a new object.
  TaskControllerCapabilities(TaskControllerCapabilities&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  TaskControllerCapabilities(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual TaskControllerCapabilities* clone() const;
  virtual ~TaskControllerCapabilities();
  /// Deep; when copying fails the target is unchanged.
  TaskControllerCapabilities& operator=(TaskControllerCapabilities const& other);
  TaskControllerCapabilities& operator=(TaskControllerCapabilities&& other) noexcept;
  void swap(TaskControllerCapabilities& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// ISO 11783 NAME of the task controller, eight bytes in hexadecimal. Attribute "A", required; 8 bytes,
  /// written as hexadecimal.
  lmx::elmx_error SetControlFunctionName(lmx::c_binary const& value) { return m_ControlFunctionName.set(value); }
  lmx::c_binary const& GetControlFunctionName() const { return m_ControlFunctionName.get(); }
  bool IssetControlFunctionName() const { return m_ControlFunctionName.is_set(); }
  void UnsetControlFunctionName() { m_ControlFunctionName.unset(); }

  /// Name of the task controller. Attribute "B", required; at most 153 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Version number by which the task controller states the edition of the standard that it follows.
  /// Attribute "C", required; one of "0", "1", "2", "3", "4".
  lmx::elmx_error SetVersionNumber(std::string const& value) { return m_VersionNumber.set(value); }
  std::string const& GetVersionNumber() const { return m_VersionNumber.get(); }
  bool IssetVersionNumber() const { return m_VersionNumber.is_set(); }
  void UnsetVersionNumber() { m_VersionNumber.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumVersionNumber() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumVersionNumber(elmx_enums code);

  /// Bit field of the functions that the task controller offers. Attribute "D", required; 0 to 63.
  lmx::elmx_error SetProvidedCapabilites(unsigned char const& value) { return m_ProvidedCapabilites.set(value); }
  unsigned char const& GetProvidedCapabilites() const { return m_ProvidedCapabilites.get(); }
  bool IssetProvidedCapabilites() const { return m_ProvidedCapabilites.is_set(); }
  void UnsetProvidedCapabilites() { m_ProvidedCapabilites.unset(); }

  /// Number of booms for which section control is supported. Attribute "E", required; 0 to 254.
  lmx::elmx_error SetNumberOfBoomsSectionControl(unsigned char const& value) { return m_NumberOfBoomsSectionControl.set(value); }
  unsigned char const& GetNumberOfBoomsSectionControl() const { return m_NumberOfBoomsSectionControl.get(); }
  bool IssetNumberOfBoomsSectionControl() const { return m_NumberOfBoomsSectionControl.is_set(); }
  void UnsetNumberOfBoomsSectionControl() { m_NumberOfBoomsSectionControl.unset(); }

  /// Number of sections for which section control is supported. Attribute "F", required; 0 to 254.
  lmx::elmx_error SetNumberOfSectionsSectionControl(unsigned char const& value) { return m_NumberOfSectionsSectionControl.set(value); }
  unsigned char const& GetNumberOfSectionsSectionControl() const { return m_NumberOfSectionsSectionControl.get(); }
  bool IssetNumberOfSectionsSectionControl() const { return m_NumberOfSectionsSectionControl.is_set(); }
  void UnsetNumberOfSectionsSectionControl() { m_NumberOfSectionsSectionControl.unset(); }

  /// Number of channels for position-based control that are supported. Attribute "G", required; 0 to 254.
  lmx::elmx_error SetNumberOfControlChannels(unsigned char const& value) { return m_NumberOfControlChannels.set(value); }
  unsigned char const& GetNumberOfControlChannels() const { return m_NumberOfControlChannels.get(); }
  bool IssetNumberOfControlChannels() const { return m_NumberOfControlChannels.is_set(); }
  void UnsetNumberOfControlChannels() { m_NumberOfControlChannels.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<lmx::c_binary> m_ControlFunctionName;
  lmx::ct_simple_pod_single<std::string> m_Designator;
  lmx::ct_simple_pod_single<std::string> m_VersionNumber;
  lmx::ct_simple_pod_single<unsigned char> m_ProvidedCapabilites;
  lmx::ct_simple_pod_single<unsigned char> m_NumberOfBoomsSectionControl;
  lmx::ct_simple_pod_single<unsigned char> m_NumberOfSectionsSectionControl;
  lmx::ct_simple_pod_single<unsigned char> m_NumberOfControlChannels;
};

/// P917Metadata, element "P917_Metadata". Extension of the main document that carries data about the job as a
/// whole.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API P917Metadata {
 public:
  P917Metadata();
  P917Metadata(P917Metadata const& other);
  /// Leaves `other` behind like a new object.
  P917Metadata(P917Metadata&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  P917Metadata(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual P917Metadata* clone() const;
  virtual ~P917Metadata();
  /// Deep; when copying fails the target is unchanged.
  P917Metadata& operator=(P917Metadata const& other);
  P917Metadata& operator=(P917Metadata&& other) noexcept;
  void swap(P917Metadata& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Extension: version of the metadata. Attribute "Version", required.
  lmx::elmx_error SetVersion(std::string const& value) { return m_Version.set(value); }
  std::string const& GetVersion() const { return m_Version.get(); }
  bool IssetVersion() const { return m_Version.is_set(); }
  void UnsetVersion() { m_Version.unset(); }

  /// Extension: true for a cloud job. Attribute "CloudJob", optional.
  lmx::elmx_error SetCloudJob(bool const& value) { return m_CloudJob.set(value); }
  bool const& GetCloudJob() const { return m_CloudJob.get(); }
  bool IssetCloudJob() const { return m_CloudJob.is_set(); }
  void UnsetCloudJob() { m_CloudJob.unset(); }

  /// Extension: code for the origin of the job, passed on uninterpreted. Attribute "originationId", optional;
  /// one of "FC", "USB", "API", "PORTAL".
  lmx::elmx_error SetOriginationId(std::string const& value) { return m_OriginationId.set(value); }
  std::string const& GetOriginationId() const { return m_OriginationId.get(); }
  bool IssetOriginationId() const { return m_OriginationId.is_set(); }
  void UnsetOriginationId() { m_OriginationId.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumOriginationId() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumOriginationId(elmx_enums code);

  /// Extension: code for the state of the job, passed on uninterpreted. Attribute "jobStatusId", optional;
  /// one of "1", "2", "3", "4".
  lmx::elmx_error SetJobStatusId(std::string const& value) { return m_JobStatusId.set(value); }
  std::string const& GetJobStatusId() const { return m_JobStatusId.get(); }
  bool IssetJobStatusId() const { return m_JobStatusId.is_set(); }
  void UnsetJobStatusId() { m_JobStatusId.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumJobStatusId() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumJobStatusId(elmx_enums code);

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_Version;
  lmx::ct_simple_pod_optional<bool> m_CloudJob;
  lmx::ct_simple_pod_optional<std::string> m_OriginationId;
  lmx::ct_simple_pod_optional<std::string> m_JobStatusId;
};

/// A stretch of the children of `LinkList`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerLinkList {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    LinkGroupChosen = 0,
    NothingChosen = 1,
  };

  InnerLinkList();
  InnerLinkList(InnerLinkList const& other);
  /// Leaves `other` behind like a new object.
  InnerLinkList(InnerLinkList&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerLinkList(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerLinkList* clone() const;
  virtual ~InnerLinkList();
  /// Deep; when copying fails the target is unchanged.
  InnerLinkList& operator=(InnerLinkList const& other);
  InnerLinkList& operator=(InnerLinkList&& other) noexcept;
  void swap(InnerLinkList& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `LinkGroup` the alternative held, with an empty run; no effect when it is already.
  void SelectLinkGroup();
  /// The run of "LGP". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  LinkGroup const& GetLinkGroup(std::size_t index) const;
  LinkGroup& GetLinkGroup(std::size_t index);
  LinkGroup& AppendLinkGroup();
  void AppendLinkGroup(LinkGroup* value);
  LinkGroup& InsertLinkGroup(std::size_t index);
  void InsertLinkGroup(std::size_t index, LinkGroup* value);
  void AssignLinkGroup(std::size_t index, LinkGroup const& value);
  void AssignLinkGroup(std::size_t index, LinkGroup* value);
  LinkGroup& BackLinkGroup();
  void DeleteLinkGroup(std::size_t index);
  void ClearLinkGroup();
  std::size_t SizeLinkGroup() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// LinkList, element "ISO11783LinkList". Root of the link list document, which ties objects of the transfer
/// set to identifiers known outside it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API LinkList {
 public:
  LinkList();
  LinkList(LinkList const& other);
  /// Leaves `other` behind like a new object.
  LinkList(LinkList&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  LinkList(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual LinkList* clone() const;
  virtual ~LinkList();
  /// Deep; when copying fails the target is unchanged.
  LinkList& operator=(LinkList const& other);
  LinkList& operator=(LinkList&& other) noexcept;
  void swap(LinkList& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Major version of the format, such as 4. Attribute "VersionMajor", required.
  lmx::elmx_error SetVersionMajor(std::string const& value) { return m_VersionMajor.set(value); }
  std::string const& GetVersionMajor() const { return m_VersionMajor.get(); }
  bool IssetVersionMajor() const { return m_VersionMajor.is_set(); }
  void UnsetVersionMajor() { m_VersionMajor.unset(); }

  /// Minor version of the format. Attribute "VersionMinor", required.
  lmx::elmx_error SetVersionMinor(std::string const& value) { return m_VersionMinor.set(value); }
  std::string const& GetVersionMinor() const { return m_VersionMinor.get(); }
  bool IssetVersionMinor() const { return m_VersionMinor.is_set(); }
  void UnsetVersionMinor() { m_VersionMinor.unset(); }

  /// Maker of the farm management software. Attribute "ManagementSoftwareManufacturer", required; at most 32
  /// characters.
  lmx::elmx_error SetManagementSoftwareManufacturer(std::string const& value) { return m_ManagementSoftwareManufacturer.set(value); }
  std::string const& GetManagementSoftwareManufacturer() const { return m_ManagementSoftwareManufacturer.get(); }
  bool IssetManagementSoftwareManufacturer() const { return m_ManagementSoftwareManufacturer.is_set(); }
  void UnsetManagementSoftwareManufacturer() { m_ManagementSoftwareManufacturer.unset(); }

  /// Version text of the farm management software. Attribute "ManagementSoftwareVersion", required; at most
  /// 32 characters.
  lmx::elmx_error SetManagementSoftwareVersion(std::string const& value) { return m_ManagementSoftwareVersion.set(value); }
  std::string const& GetManagementSoftwareVersion() const { return m_ManagementSoftwareVersion.get(); }
  bool IssetManagementSoftwareVersion() const { return m_ManagementSoftwareVersion.is_set(); }
  void UnsetManagementSoftwareVersion() { m_ManagementSoftwareVersion.unset(); }

  /// Maker of the task controller. Attribute "TaskControllerManufacturer", optional; at most 32 characters.
  lmx::elmx_error SetTaskControllerManufacturer(std::string const& value) { return m_TaskControllerManufacturer.set(value); }
  std::string const& GetTaskControllerManufacturer() const { return m_TaskControllerManufacturer.get(); }
  bool IssetTaskControllerManufacturer() const { return m_TaskControllerManufacturer.is_set(); }
  void UnsetTaskControllerManufacturer() { m_TaskControllerManufacturer.unset(); }

  /// Version text of the task controller. Attribute "TaskControllerVersion", optional; at most 32 characters.
  lmx::elmx_error SetTaskControllerVersion(std::string const& value) { return m_TaskControllerVersion.set(value); }
  std::string const& GetTaskControllerVersion() const { return m_TaskControllerVersion.get(); }
  bool IssetTaskControllerVersion() const { return m_TaskControllerVersion.is_set(); }
  void UnsetTaskControllerVersion() { m_TaskControllerVersion.unset(); }

  /// Version text of the link list file. Attribute "FileVersion", optional; at most 32 characters.
  lmx::elmx_error SetFileVersion(std::string const& value) { return m_FileVersion.set(value); }
  std::string const& GetFileVersion() const { return m_FileVersion.get(); }
  bool IssetFileVersion() const { return m_FileVersion.is_set(); }
  void UnsetFileVersion() { m_FileVersion.unset(); }

  /// Side that wrote the data: 1 farm management software, 2 task controller. Attribute "DataTransferOrigin",
  /// required; one of "1", "2".
  lmx::elmx_error SetDataTransferOrigin(std::string const& value) { return m_DataTransferOrigin.set(value); }
  std::string const& GetDataTransferOrigin() const { return m_DataTransferOrigin.get(); }
  bool IssetDataTransferOrigin() const { return m_DataTransferOrigin.is_set(); }
  void UnsetDataTransferOrigin() { m_DataTransferOrigin.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumDataTransferOrigin() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumDataTransferOrigin(elmx_enums code);

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerLinkList const& GetInnerLinkList(std::size_t index) const;
  InnerLinkList& GetInnerLinkList(std::size_t index);
  InnerLinkList& AppendInnerLinkList();
  void AppendInnerLinkList(InnerLinkList* value);
  InnerLinkList& InsertInnerLinkList(std::size_t index);
  void InsertInnerLinkList(std::size_t index, InnerLinkList* value);
  void AssignInnerLinkList(std::size_t index, InnerLinkList const& value);
  void AssignInnerLinkList(std::size_t index, InnerLinkList* value);
  InnerLinkList& BackInnerLinkList();
  void DeleteInnerLinkList(std::size_t index);
  void ClearInnerLinkList();
  std::size_t SizeInnerLinkList() const;

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_VersionMajor;
  lmx::ct_simple_pod_single<std::string> m_VersionMinor;
  lmx::ct_simple_pod_single<std::string> m_ManagementSoftwareManufacturer;
  lmx::ct_simple_pod_single<std::string> m_ManagementSoftwareVersion;
  lmx::ct_simple_pod_optional<std::string> m_TaskControllerManufacturer;
  lmx::ct_simple_pod_optional<std::string> m_TaskControllerVersion;
  lmx::ct_simple_pod_optional<std::string> m_FileVersion;
  lmx::ct_simple_pod_single<std::string> m_DataTransferOrigin;
  lmx::ct_complex_multi<InnerLinkList> mInnerLinkList;
};

/// A stretch of the children of `LinkGroup`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerLinkGroup {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    LinkChosen = 0,
    NothingChosen = 1,
  };

  InnerLinkGroup();
  InnerLinkGroup(InnerLinkGroup const& other);
  /// Leaves `other` behind like a new object.
  InnerLinkGroup(InnerLinkGroup&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerLinkGroup(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerLinkGroup* clone() const;
  virtual ~InnerLinkGroup();
  /// Deep; when copying fails the target is unchanged.
  InnerLinkGroup& operator=(InnerLinkGroup const& other);
  InnerLinkGroup& operator=(InnerLinkGroup&& other) noexcept;
  void swap(InnerLinkGroup& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `Link` the alternative held, with an empty run; no effect when it is already.
  void SelectLink();
  /// The run of "LNK". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Link const& GetLink(std::size_t index) const;
  Link& GetLink(std::size_t index);
  Link& AppendLink();
  void AppendLink(Link* value);
  Link& InsertLink(std::size_t index);
  void InsertLink(std::size_t index, Link* value);
  void AssignLink(std::size_t index, Link const& value);
  void AssignLink(std::size_t index, Link* value);
  Link& BackLink();
  void DeleteLink(std::size_t index);
  void ClearLink();
  std::size_t SizeLink() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// LinkGroup, element "LGP". Group of links whose values are all of one kind.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API LinkGroup {
 public:
  LinkGroup();
  LinkGroup(LinkGroup const& other);
  /// Leaves `other` behind like a new object.
  LinkGroup(LinkGroup&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  LinkGroup(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual LinkGroup* clone() const;
  virtual ~LinkGroup();
  /// Deep; when copying fails the target is unchanged.
  LinkGroup& operator=(LinkGroup const& other);
  LinkGroup& operator=(LinkGroup&& other) noexcept;
  void swap(LinkGroup& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the link group within the link list. Attribute "A", required; 4 to 14 characters, pattern
  /// (LGP|LGP-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Kind of the link values: 1 UUIDs; the other kinds are kept but not interpreted. Attribute "B", required;
  /// one of "1", "2", "3", "4".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// Global Location Number of the manufacturer that defines the link values. Attribute "C", optional; at
  /// most 64 characters.
  lmx::elmx_error SetManufacturerGLN(std::string const& value) { return m_ManufacturerGLN.set(value); }
  std::string const& GetManufacturerGLN() const { return m_ManufacturerGLN.get(); }
  bool IssetManufacturerGLN() const { return m_ManufacturerGLN.is_set(); }
  void UnsetManufacturerGLN() { m_ManufacturerGLN.unset(); }

  /// Namespace in which the link values are to be understood. Attribute "D", optional; at most 255
  /// characters.
  lmx::elmx_error SetNamespace(std::string const& value) { return m_Namespace.set(value); }
  std::string const& GetNamespace() const { return m_Namespace.get(); }
  bool IssetNamespace() const { return m_Namespace.is_set(); }
  void UnsetNamespace() { m_Namespace.unset(); }

  /// Name of the link group. Attribute "E", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerLinkGroup const& GetInnerLinkGroup(std::size_t index) const;
  InnerLinkGroup& GetInnerLinkGroup(std::size_t index);
  InnerLinkGroup& AppendInnerLinkGroup();
  void AppendInnerLinkGroup(InnerLinkGroup* value);
  InnerLinkGroup& InsertInnerLinkGroup(std::size_t index);
  void InsertInnerLinkGroup(std::size_t index, InnerLinkGroup* value);
  void AssignInnerLinkGroup(std::size_t index, InnerLinkGroup const& value);
  void AssignInnerLinkGroup(std::size_t index, InnerLinkGroup* value);
  InnerLinkGroup& BackInnerLinkGroup();
  void DeleteInnerLinkGroup(std::size_t index);
  void ClearInnerLinkGroup();
  std::size_t SizeInnerLinkGroup() const;

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_Id;
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_optional<std::string> m_ManufacturerGLN;
  lmx::ct_simple_pod_optional<std::string> m_Namespace;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_complex_multi<InnerLinkGroup> mInnerLinkGroup;
};

/// Link, element "LNK". Ties one object of the transfer set to one outside identifier.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Link {
 public:
  Link();
  Link(Link const& other);
  /// Leaves `other` behind like a new object.
  Link(Link&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Link(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Link* clone() const;
  virtual ~Link();
  /// Deep; when copying fails the target is unchanged.
  Link& operator=(Link const& other);
  Link& operator=(Link&& other) noexcept;
  void swap(Link& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Object that is linked, by its identifier or by a file-like name. Attribute "A", required; 4 to 14
  /// characters, pattern
  /// ((BSN|CCT|CCG|CLD|CTP|CPC|CTR|DVC|FRM|GGP|GPN|OTQ|PFD|PDT|PGP|PLN|TSK|VPN|WKR)(|-)([0-9])+)|(([0-9A-Z]){1,10}\.([0-9A-Z.]){1,10}).
  lmx::elmx_error SetObjectIdRef(std::string const& value) { return m_ObjectIdRef.set(value); }
  std::string const& GetObjectIdRef() const { return m_ObjectIdRef.get(); }
  bool IssetObjectIdRef() const { return m_ObjectIdRef.is_set(); }
  void UnsetObjectIdRef() { m_ObjectIdRef.unset(); }

  /// Outside identifier of the object, in the form that the group's type states. Attribute "B", required; at
  /// most 255 characters.
  lmx::elmx_error SetValue(std::string const& value) { return m_Value.set(value); }
  std::string const& GetValue() const { return m_Value.get(); }
  bool IssetValue() const { return m_Value.is_set(); }
  void UnsetValue() { m_Value.unset(); }

  /// Name of the link. Attribute "C", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// True when everything required is there; otherwise what is missing is recorded (see `c_check_tracker`).
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  /// The same for this element, under `name` in the recorded path, and all that it holds.
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// Reads this element as the document's top element.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  /// Reads this element when its start tag has been seen.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader, std::string const& name);
  /// Reads the attribute now at the reader. False when it is none of this element's.
  bool unmarshal_attributes(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Takes an attribute whose value is plain and as it should be. Returns what the value had to pass; null, with
  /// nothing changed, for any other.
  lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const& attribute);
  /// True when all required attributes are set.
  bool has_required_attributes() const;
  /// `ELMX_REQUIRED_ATTRIBUTES_MISSING` unless they are.
  lmx::elmx_error unmarshal_attributes_check(lmx::xmlReader& reader);
  bool unmarshal_body(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes this element under the tag `name`. On an error the document stays cut off where it is.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes every required attribute, set or not, and each optional one that is set.
  void marshal_attributes(lmx::c_xml_writer& writer) const;
  /// Writes the content. `ELMX_BAD_CHOICE` when a wrapper's `chosen` is none of its alternatives.
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  static lmx::s_event_map const attr_event_map[];
  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_simple_pod_single<std::string> m_ObjectIdRef;
  lmx::ct_simple_pod_single<std::string> m_Value;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
};
