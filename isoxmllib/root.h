// clang-format off
// Generated from schema/root.toml. Edit the schema, then build the target `schema`.

#pragma once

#include <cstdint>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/choice.h"
#include "GenLibrarySupportFiles/lmxparse/c_xml_reader.h"
#include "isoxmllib/fwd.h"

/// Every document passes through here: a single choice over every element of the format, so that a whole
/// document and any fragment are read and written alike.
class ISOXML_API Root {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AttachedFileChosen = 0,
    TaskDataChosen = 1,
    P917MetadataChosen = 2,
    TaskControllerCapabilitiesChosen = 3,
    ExternalFileReferenceChosen = 4,
    AllocationStampChosen = 5,
    BaseStationChosen = 6,
    CodedCommentChosen = 7,
    CoddedCommentGroupChosen = 8,
    CodedCommentListValueChosen = 9,
    ColourLegendChosen = 10,
    ColourRangeChosen = 11,
    CommentAllocationChosen = 12,
    ConnectionChosen = 13,
    ControlAssignmentChosen = 14,
    CropTypeChosen = 15,
    CropVarietyChosen = 16,
    CulturalPracticeChosen = 17,
    GrowerChosen = 18,
    DataLogTriggerChosen = 19,
    DataLogValueChosen = 20,
    DeviceChosen = 21,
    DeviceAllocationChosen = 22,
    DeviceElementChosen = 23,
    DeviceObjectReferenceChosen = 24,
    DeviceProcessDataChosen = 25,
    DevicePropertyChosen = 26,
    DeviceValuePresentationChosen = 27,
    FarmChosen = 28,
    GridChosen = 29,
    GuidanceAllocationChosen = 30,
    GuidanceGroupChosen = 31,
    GuidancePatternChosen = 32,
    GuidanceShiftChosen = 33,
    LineStringChosen = 34,
    OperationTechniqueChosen = 35,
    OperationTechniqueReferenceChosen = 36,
    OperTechPracticeChosen = 37,
    FieldChosen = 38,
    PointChosen = 39,
    PolygonChosen = 40,
    PositionChosen = 41,
    ProcessDataVariableChosen = 42,
    ProductChosen = 43,
    ProductAllocationChosen = 44,
    ProductGroupChosen = 45,
    ProductRelationChosen = 46,
    TaskChosen = 47,
    TimeChosen = 48,
    TimeLogChosen = 49,
    TreatmentZoneChosen = 50,
    ValuePresentationChosen = 51,
    WorkerChosen = 52,
    WorkerAllocationChosen = 53,
    P917CommentChosen = 54,
    P917QuestionsChosen = 55,
    P917QuestionChosen = 56,
    ExternalFileContentChosen = 57,
    LinkListChosen = 58,
    LinkChosen = 59,
    LinkGroupChosen = 60,
    NothingChosen = 61,
  };

  Root();
  Root(Root const& other);
  /// Leaves `other` behind like a new object.
  Root(Root&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Root(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Root* clone() const;
  virtual ~Root();
  /// Deep; when copying fails the target is unchanged.
  Root& operator=(Root const& other);
  Root& operator=(Root&& other) noexcept;
  void swap(Root& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Frees whatever is held; nothing is chosen afterwards.
  void release_choice();
  bool IsOccursOk(lmx::c_check_tracker* tracker = nullptr) const;
  bool Check(lmx::c_check_tracker* tracker = nullptr, char const* name = nullptr) const;
  /// True when the reader stands at one of the alternatives.
  static bool IsMember(lmx::xmlReader& reader);
  /// Reads a document, whatever element it begins with.
  lmx::elmx_error unmarshal(lmx::xmlReader& reader);
  bool unmarshal(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// Writes what is held under its own tag; `name` is ignored. Nothing for `NothingChosen`;
  /// `ELMX_BAD_CHOICE` for a `chosen` that is no alternative.
  lmx::elmx_error marshal(lmx::c_xml_writer& writer, char const* name) const;
  /// Writes nothing: a choice has no attributes.
  void marshal_attributes(lmx::c_xml_writer&) const {}
  lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;

  /// Makes `AttachedFile` the alternative held, with no object yet; no effect when it is already.
  void SelectAttachedFile();
  /// The "AFE". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AttachedFile const& GetAttachedFile() const;
  AttachedFile& GetAttachedFile();

  /// Makes `TaskData` the alternative held, with no object yet; no effect when it is already.
  void SelectTaskData();
  /// The "ISO11783_TaskData". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  TaskData const& GetTaskData() const;
  TaskData& GetTaskData();

  /// Makes `P917Metadata` the alternative held, with no object yet; no effect when it is already.
  void SelectP917Metadata();
  /// The "P917_Metadata". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  P917Metadata const& GetP917Metadata() const;
  P917Metadata& GetP917Metadata();

  /// Makes `TaskControllerCapabilities` the alternative held, with no object yet; no effect when it is already.
  void SelectTaskControllerCapabilities();
  /// The "TCC". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  TaskControllerCapabilities const& GetTaskControllerCapabilities() const;
  TaskControllerCapabilities& GetTaskControllerCapabilities();

  /// Makes `ExternalFileReference` the alternative held, with no object yet; no effect when it is already.
  void SelectExternalFileReference();
  /// The "XFR". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ExternalFileReference const& GetExternalFileReference() const;
  ExternalFileReference& GetExternalFileReference();

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  /// Makes `BaseStation` the alternative held, with no object yet; no effect when it is already.
  void SelectBaseStation();
  /// The "BSN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  BaseStation const& GetBaseStation() const;
  BaseStation& GetBaseStation();

  /// Makes `CodedComment` the alternative held, with no object yet; no effect when it is already.
  void SelectCodedComment();
  /// The "CCT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CodedComment const& GetCodedComment() const;
  CodedComment& GetCodedComment();

  /// Makes `CoddedCommentGroup` the alternative held, with no object yet; no effect when it is already.
  void SelectCoddedCommentGroup();
  /// The "CCG". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CoddedCommentGroup const& GetCoddedCommentGroup() const;
  CoddedCommentGroup& GetCoddedCommentGroup();

  /// Makes `CodedCommentListValue` the alternative held, with no object yet; no effect when it is already.
  void SelectCodedCommentListValue();
  /// The "CCL". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CodedCommentListValue const& GetCodedCommentListValue() const;
  CodedCommentListValue& GetCodedCommentListValue();

  /// Makes `ColourLegend` the alternative held, with no object yet; no effect when it is already.
  void SelectColourLegend();
  /// The "CLD". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ColourLegend const& GetColourLegend() const;
  ColourLegend& GetColourLegend();

  /// Makes `ColourRange` the alternative held, with no object yet; no effect when it is already.
  void SelectColourRange();
  /// The "CRG". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ColourRange const& GetColourRange() const;
  ColourRange& GetColourRange();

  /// Makes `CommentAllocation` the alternative held, with no object yet; no effect when it is already.
  void SelectCommentAllocation();
  /// The "CAN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CommentAllocation const& GetCommentAllocation() const;
  CommentAllocation& GetCommentAllocation();

  /// Makes `Connection` the alternative held, with no object yet; no effect when it is already.
  void SelectConnection();
  /// The "CNN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Connection const& GetConnection() const;
  Connection& GetConnection();

  /// Makes `ControlAssignment` the alternative held, with no object yet; no effect when it is already.
  void SelectControlAssignment();
  /// The "CAT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ControlAssignment const& GetControlAssignment() const;
  ControlAssignment& GetControlAssignment();

  /// Makes `CropType` the alternative held, with no object yet; no effect when it is already.
  void SelectCropType();
  /// The "CTP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CropType const& GetCropType() const;
  CropType& GetCropType();

  /// Makes `CropVariety` the alternative held, with no object yet; no effect when it is already.
  void SelectCropVariety();
  /// The "CVT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CropVariety const& GetCropVariety() const;
  CropVariety& GetCropVariety();

  /// Makes `CulturalPractice` the alternative held, with no object yet; no effect when it is already.
  void SelectCulturalPractice();
  /// The "CPC". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  CulturalPractice const& GetCulturalPractice() const;
  CulturalPractice& GetCulturalPractice();

  /// Makes `Grower` the alternative held, with no object yet; no effect when it is already.
  void SelectGrower();
  /// The "CTR". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Grower const& GetGrower() const;
  Grower& GetGrower();

  /// Makes `DataLogTrigger` the alternative held, with no object yet; no effect when it is already.
  void SelectDataLogTrigger();
  /// The "DLT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DataLogTrigger const& GetDataLogTrigger() const;
  DataLogTrigger& GetDataLogTrigger();

  /// Makes `DataLogValue` the alternative held, with no object yet; no effect when it is already.
  void SelectDataLogValue();
  /// The "DLV". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DataLogValue const& GetDataLogValue() const;
  DataLogValue& GetDataLogValue();

  /// Makes `Device` the alternative held, with no object yet; no effect when it is already.
  void SelectDevice();
  /// The "DVC". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Device const& GetDevice() const;
  Device& GetDevice();

  /// Makes `DeviceAllocation` the alternative held, with no object yet; no effect when it is already.
  void SelectDeviceAllocation();
  /// The "DAN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DeviceAllocation const& GetDeviceAllocation() const;
  DeviceAllocation& GetDeviceAllocation();

  /// Makes `DeviceElement` the alternative held, with no object yet; no effect when it is already.
  void SelectDeviceElement();
  /// The "DET". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DeviceElement const& GetDeviceElement() const;
  DeviceElement& GetDeviceElement();

  /// Makes `DeviceObjectReference` the alternative held, with no object yet; no effect when it is already.
  void SelectDeviceObjectReference();
  /// The "DOR". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DeviceObjectReference const& GetDeviceObjectReference() const;
  DeviceObjectReference& GetDeviceObjectReference();

  /// Makes `DeviceProcessData` the alternative held, with no object yet; no effect when it is already.
  void SelectDeviceProcessData();
  /// The "DPD". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DeviceProcessData const& GetDeviceProcessData() const;
  DeviceProcessData& GetDeviceProcessData();

  /// Makes `DeviceProperty` the alternative held, with no object yet; no effect when it is already.
  void SelectDeviceProperty();
  /// The "DPT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DeviceProperty const& GetDeviceProperty() const;
  DeviceProperty& GetDeviceProperty();

  /// Makes `DeviceValuePresentation` the alternative held, with no object yet; no effect when it is already.
  void SelectDeviceValuePresentation();
  /// The "DVP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  DeviceValuePresentation const& GetDeviceValuePresentation() const;
  DeviceValuePresentation& GetDeviceValuePresentation();

  /// Makes `Farm` the alternative held, with no object yet; no effect when it is already.
  void SelectFarm();
  /// The "FRM". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Farm const& GetFarm() const;
  Farm& GetFarm();

  /// Makes `Grid` the alternative held, with no object yet; no effect when it is already.
  void SelectGrid();
  /// The "GRD". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Grid const& GetGrid() const;
  Grid& GetGrid();

  /// Makes `GuidanceAllocation` the alternative held, with no object yet; no effect when it is already.
  void SelectGuidanceAllocation();
  /// The "GAN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  GuidanceAllocation const& GetGuidanceAllocation() const;
  GuidanceAllocation& GetGuidanceAllocation();

  /// Makes `GuidanceGroup` the alternative held, with no object yet; no effect when it is already.
  void SelectGuidanceGroup();
  /// The "GGP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  GuidanceGroup const& GetGuidanceGroup() const;
  GuidanceGroup& GetGuidanceGroup();

  /// Makes `GuidancePattern` the alternative held, with no object yet; no effect when it is already.
  void SelectGuidancePattern();
  /// The "GPN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  GuidancePattern const& GetGuidancePattern() const;
  GuidancePattern& GetGuidancePattern();

  /// Makes `GuidanceShift` the alternative held, with no object yet; no effect when it is already.
  void SelectGuidanceShift();
  /// The "GST". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  GuidanceShift const& GetGuidanceShift() const;
  GuidanceShift& GetGuidanceShift();

  /// Makes `LineString` the alternative held, with no object yet; no effect when it is already.
  void SelectLineString();
  /// The "LSG". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  LineString const& GetLineString() const;
  LineString& GetLineString();

  /// Makes `OperationTechnique` the alternative held, with no object yet; no effect when it is already.
  void SelectOperationTechnique();
  /// The "OTQ". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  OperationTechnique const& GetOperationTechnique() const;
  OperationTechnique& GetOperationTechnique();

  /// Makes `OperationTechniqueReference` the alternative held, with no object yet; no effect when it is already.
  void SelectOperationTechniqueReference();
  /// The "OTR". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  OperationTechniqueReference const& GetOperationTechniqueReference() const;
  OperationTechniqueReference& GetOperationTechniqueReference();

  /// Makes `OperTechPractice` the alternative held, with no object yet; no effect when it is already.
  void SelectOperTechPractice();
  /// The "OTP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  OperTechPractice const& GetOperTechPractice() const;
  OperTechPractice& GetOperTechPractice();

  /// Makes `Field` the alternative held, with no object yet; no effect when it is already.
  void SelectField();
  /// The "PFD". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Field const& GetField() const;
  Field& GetField();

  /// Makes `Point` the alternative held, with no object yet; no effect when it is already.
  void SelectPoint();
  /// The "PNT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Point const& GetPoint() const;
  Point& GetPoint();

  /// Makes `Polygon` the alternative held, with no object yet; no effect when it is already.
  void SelectPolygon();
  /// The "PLN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Polygon const& GetPolygon() const;
  Polygon& GetPolygon();

  /// Makes `Position` the alternative held, with no object yet; no effect when it is already.
  void SelectPosition();
  /// The "PTN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Position const& GetPosition() const;
  Position& GetPosition();

  /// Makes `ProcessDataVariable` the alternative held, with no object yet; no effect when it is already.
  void SelectProcessDataVariable();
  /// The "PDV". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ProcessDataVariable const& GetProcessDataVariable() const;
  ProcessDataVariable& GetProcessDataVariable();

  /// Makes `Product` the alternative held, with no object yet; no effect when it is already.
  void SelectProduct();
  /// The "PDT". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Product const& GetProduct() const;
  Product& GetProduct();

  /// Makes `ProductAllocation` the alternative held, with no object yet; no effect when it is already.
  void SelectProductAllocation();
  /// The "PAN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ProductAllocation const& GetProductAllocation() const;
  ProductAllocation& GetProductAllocation();

  /// Makes `ProductGroup` the alternative held, with no object yet; no effect when it is already.
  void SelectProductGroup();
  /// The "PGP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ProductGroup const& GetProductGroup() const;
  ProductGroup& GetProductGroup();

  /// Makes `ProductRelation` the alternative held, with no object yet; no effect when it is already.
  void SelectProductRelation();
  /// The "PRN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ProductRelation const& GetProductRelation() const;
  ProductRelation& GetProductRelation();

  /// Makes `Task` the alternative held, with no object yet; no effect when it is already.
  void SelectTask();
  /// The "TSK". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Task const& GetTask() const;
  Task& GetTask();

  /// Makes `Time` the alternative held, with no object yet; no effect when it is already.
  void SelectTime();
  /// The "TIM". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Time const& GetTime() const;
  Time& GetTime();

  /// Makes `TimeLog` the alternative held, with no object yet; no effect when it is already.
  void SelectTimeLog();
  /// The "TLG". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  TimeLog const& GetTimeLog() const;
  TimeLog& GetTimeLog();

  /// Makes `TreatmentZone` the alternative held, with no object yet; no effect when it is already.
  void SelectTreatmentZone();
  /// The "TZN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  TreatmentZone const& GetTreatmentZone() const;
  TreatmentZone& GetTreatmentZone();

  /// Makes `ValuePresentation` the alternative held, with no object yet; no effect when it is already.
  void SelectValuePresentation();
  /// The "VPN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ValuePresentation const& GetValuePresentation() const;
  ValuePresentation& GetValuePresentation();

  /// Makes `Worker` the alternative held, with no object yet; no effect when it is already.
  void SelectWorker();
  /// The "WKR". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Worker const& GetWorker() const;
  Worker& GetWorker();

  /// Makes `WorkerAllocation` the alternative held, with no object yet; no effect when it is already.
  void SelectWorkerAllocation();
  /// The "WAN". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  WorkerAllocation const& GetWorkerAllocation() const;
  WorkerAllocation& GetWorkerAllocation();

  /// Makes `P917Comment` the alternative held, with no object yet; no effect when it is already.
  void SelectP917Comment();
  /// The "P917_comment". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  P917Comment const& GetP917Comment() const;
  P917Comment& GetP917Comment();
  void SetP917Comment(std::string const& text);

  /// Makes `P917Questions` the alternative held, with no object yet; no effect when it is already.
  void SelectP917Questions();
  /// The "P917_Questions". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  P917Questions const& GetP917Questions() const;
  P917Questions& GetP917Questions();

  /// Makes `P917Question` the alternative held, with no object yet; no effect when it is already.
  void SelectP917Question();
  /// The "P917_Question". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  P917Question const& GetP917Question() const;
  P917Question& GetP917Question();

  /// Makes `ExternalFileContent` the alternative held, with no object yet; no effect when it is already.
  void SelectExternalFileContent();
  /// The "XFC". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  ExternalFileContent const& GetExternalFileContent() const;
  ExternalFileContent& GetExternalFileContent();

  /// Makes `LinkList` the alternative held, with no object yet; no effect when it is already.
  void SelectLinkList();
  /// The "ISO11783LinkList". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  LinkList const& GetLinkList() const;
  LinkList& GetLinkList();

  /// Makes `Link` the alternative held, with no object yet; no effect when it is already.
  void SelectLink();
  /// The "LNK". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Link const& GetLink() const;
  Link& GetLink();

  /// Makes `LinkGroup` the alternative held, with no object yet; no effect when it is already.
  void SelectLinkGroup();
  /// The "LGP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  LinkGroup const& GetLinkGroup() const;
  LinkGroup& GetLinkGroup();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];
  static lmx::s_known_elements const known_elements[];

 private:
  lmx::ct_choice m_held;
};
