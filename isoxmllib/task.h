// clang-format off
// Generated from schema/task.toml. Edit the schema, then build the target `schema`.

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
#include "GenLibrarySupportFiles/lmxtypes/c_decimal.h"
#include "GenLibrarySupportFiles/lmxtypes/date_time.h"
#include "isoxmllib/enums.h"
#include "isoxmllib/fwd.h"

/// A stretch of the children of `Task`: one unbroken run of like siblings, or one child, as `chosen` tells.
/// It has no XML element of its own.
class ISOXML_API InnerTask {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    TreatmentZoneChosen = 0,
    TimeChosen = 1,
    OperTechPracticeChosen = 2,
    WorkerAllocationChosen = 3,
    DeviceAllocationChosen = 4,
    ConnectionChosen = 5,
    ProductAllocationChosen = 6,
    DataLogTriggerChosen = 7,
    CommentAllocationChosen = 8,
    TimeLogChosen = 9,
    GridChosen = 10,
    ControlAssignmentChosen = 11,
    GuidanceAllocationChosen = 12,
    P917CommentChosen = 13,
    NothingChosen = 14,
  };

  InnerTask();
  InnerTask(InnerTask const& other);
  /// Leaves `other` behind like a new object.
  InnerTask(InnerTask&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerTask(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerTask* clone() const;
  virtual ~InnerTask();
  /// Deep; when copying fails the target is unchanged.
  InnerTask& operator=(InnerTask const& other);
  InnerTask& operator=(InnerTask&& other) noexcept;
  void swap(InnerTask& other) noexcept;
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

  /// Makes `TreatmentZone` the alternative held, with an empty run; no effect when it is already.
  void SelectTreatmentZone();
  /// The run of "TZN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  TreatmentZone const& GetTreatmentZone(std::size_t index) const;
  TreatmentZone& GetTreatmentZone(std::size_t index);
  TreatmentZone& AppendTreatmentZone();
  void AppendTreatmentZone(TreatmentZone* value);
  TreatmentZone& InsertTreatmentZone(std::size_t index);
  void InsertTreatmentZone(std::size_t index, TreatmentZone* value);
  void AssignTreatmentZone(std::size_t index, TreatmentZone const& value);
  void AssignTreatmentZone(std::size_t index, TreatmentZone* value);
  TreatmentZone& BackTreatmentZone();
  void DeleteTreatmentZone(std::size_t index);
  void ClearTreatmentZone();
  std::size_t SizeTreatmentZone() const;

  /// Makes `Time` the alternative held, with an empty run; no effect when it is already.
  void SelectTime();
  /// The run of "TIM". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Time const& GetTime(std::size_t index) const;
  Time& GetTime(std::size_t index);
  Time& AppendTime();
  void AppendTime(Time* value);
  Time& InsertTime(std::size_t index);
  void InsertTime(std::size_t index, Time* value);
  void AssignTime(std::size_t index, Time const& value);
  void AssignTime(std::size_t index, Time* value);
  Time& BackTime();
  void DeleteTime(std::size_t index);
  void ClearTime();
  std::size_t SizeTime() const;

  /// Makes `OperTechPractice` the alternative held, with no object yet; no effect when it is already.
  void SelectOperTechPractice();
  /// The "OTP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  OperTechPractice const& GetOperTechPractice() const;
  OperTechPractice& GetOperTechPractice();

  /// Makes `WorkerAllocation` the alternative held, with an empty run; no effect when it is already.
  void SelectWorkerAllocation();
  /// The run of "WAN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  WorkerAllocation const& GetWorkerAllocation(std::size_t index) const;
  WorkerAllocation& GetWorkerAllocation(std::size_t index);
  WorkerAllocation& AppendWorkerAllocation();
  void AppendWorkerAllocation(WorkerAllocation* value);
  WorkerAllocation& InsertWorkerAllocation(std::size_t index);
  void InsertWorkerAllocation(std::size_t index, WorkerAllocation* value);
  void AssignWorkerAllocation(std::size_t index, WorkerAllocation const& value);
  void AssignWorkerAllocation(std::size_t index, WorkerAllocation* value);
  WorkerAllocation& BackWorkerAllocation();
  void DeleteWorkerAllocation(std::size_t index);
  void ClearWorkerAllocation();
  std::size_t SizeWorkerAllocation() const;

  /// Makes `DeviceAllocation` the alternative held, with an empty run; no effect when it is already.
  void SelectDeviceAllocation();
  /// The run of "DAN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DeviceAllocation const& GetDeviceAllocation(std::size_t index) const;
  DeviceAllocation& GetDeviceAllocation(std::size_t index);
  DeviceAllocation& AppendDeviceAllocation();
  void AppendDeviceAllocation(DeviceAllocation* value);
  DeviceAllocation& InsertDeviceAllocation(std::size_t index);
  void InsertDeviceAllocation(std::size_t index, DeviceAllocation* value);
  void AssignDeviceAllocation(std::size_t index, DeviceAllocation const& value);
  void AssignDeviceAllocation(std::size_t index, DeviceAllocation* value);
  DeviceAllocation& BackDeviceAllocation();
  void DeleteDeviceAllocation(std::size_t index);
  void ClearDeviceAllocation();
  std::size_t SizeDeviceAllocation() const;

  /// Makes `Connection` the alternative held, with an empty run; no effect when it is already.
  void SelectConnection();
  /// The run of "CNN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Connection const& GetConnection(std::size_t index) const;
  Connection& GetConnection(std::size_t index);
  Connection& AppendConnection();
  void AppendConnection(Connection* value);
  Connection& InsertConnection(std::size_t index);
  void InsertConnection(std::size_t index, Connection* value);
  void AssignConnection(std::size_t index, Connection const& value);
  void AssignConnection(std::size_t index, Connection* value);
  Connection& BackConnection();
  void DeleteConnection(std::size_t index);
  void ClearConnection();
  std::size_t SizeConnection() const;

  /// Makes `ProductAllocation` the alternative held, with an empty run; no effect when it is already.
  void SelectProductAllocation();
  /// The run of "PAN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ProductAllocation const& GetProductAllocation(std::size_t index) const;
  ProductAllocation& GetProductAllocation(std::size_t index);
  ProductAllocation& AppendProductAllocation();
  void AppendProductAllocation(ProductAllocation* value);
  ProductAllocation& InsertProductAllocation(std::size_t index);
  void InsertProductAllocation(std::size_t index, ProductAllocation* value);
  void AssignProductAllocation(std::size_t index, ProductAllocation const& value);
  void AssignProductAllocation(std::size_t index, ProductAllocation* value);
  ProductAllocation& BackProductAllocation();
  void DeleteProductAllocation(std::size_t index);
  void ClearProductAllocation();
  std::size_t SizeProductAllocation() const;

  /// Makes `DataLogTrigger` the alternative held, with an empty run; no effect when it is already.
  void SelectDataLogTrigger();
  /// The run of "DLT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DataLogTrigger const& GetDataLogTrigger(std::size_t index) const;
  DataLogTrigger& GetDataLogTrigger(std::size_t index);
  DataLogTrigger& AppendDataLogTrigger();
  void AppendDataLogTrigger(DataLogTrigger* value);
  DataLogTrigger& InsertDataLogTrigger(std::size_t index);
  void InsertDataLogTrigger(std::size_t index, DataLogTrigger* value);
  void AssignDataLogTrigger(std::size_t index, DataLogTrigger const& value);
  void AssignDataLogTrigger(std::size_t index, DataLogTrigger* value);
  DataLogTrigger& BackDataLogTrigger();
  void DeleteDataLogTrigger(std::size_t index);
  void ClearDataLogTrigger();
  std::size_t SizeDataLogTrigger() const;

  /// Makes `CommentAllocation` the alternative held, with an empty run; no effect when it is already.
  void SelectCommentAllocation();
  /// The run of "CAN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  CommentAllocation const& GetCommentAllocation(std::size_t index) const;
  CommentAllocation& GetCommentAllocation(std::size_t index);
  CommentAllocation& AppendCommentAllocation();
  void AppendCommentAllocation(CommentAllocation* value);
  CommentAllocation& InsertCommentAllocation(std::size_t index);
  void InsertCommentAllocation(std::size_t index, CommentAllocation* value);
  void AssignCommentAllocation(std::size_t index, CommentAllocation const& value);
  void AssignCommentAllocation(std::size_t index, CommentAllocation* value);
  CommentAllocation& BackCommentAllocation();
  void DeleteCommentAllocation(std::size_t index);
  void ClearCommentAllocation();
  std::size_t SizeCommentAllocation() const;

  /// Makes `TimeLog` the alternative held, with an empty run; no effect when it is already.
  void SelectTimeLog();
  /// The run of "TLG". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  TimeLog const& GetTimeLog(std::size_t index) const;
  TimeLog& GetTimeLog(std::size_t index);
  TimeLog& AppendTimeLog();
  void AppendTimeLog(TimeLog* value);
  TimeLog& InsertTimeLog(std::size_t index);
  void InsertTimeLog(std::size_t index, TimeLog* value);
  void AssignTimeLog(std::size_t index, TimeLog const& value);
  void AssignTimeLog(std::size_t index, TimeLog* value);
  TimeLog& BackTimeLog();
  void DeleteTimeLog(std::size_t index);
  void ClearTimeLog();
  std::size_t SizeTimeLog() const;

  /// Makes `Grid` the alternative held, with no object yet; no effect when it is already.
  void SelectGrid();
  /// The "GRD". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  Grid const& GetGrid() const;
  Grid& GetGrid();

  /// Makes `ControlAssignment` the alternative held, with an empty run; no effect when it is already.
  void SelectControlAssignment();
  /// The run of "CAT". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ControlAssignment const& GetControlAssignment(std::size_t index) const;
  ControlAssignment& GetControlAssignment(std::size_t index);
  ControlAssignment& AppendControlAssignment();
  void AppendControlAssignment(ControlAssignment* value);
  ControlAssignment& InsertControlAssignment(std::size_t index);
  void InsertControlAssignment(std::size_t index, ControlAssignment* value);
  void AssignControlAssignment(std::size_t index, ControlAssignment const& value);
  void AssignControlAssignment(std::size_t index, ControlAssignment* value);
  ControlAssignment& BackControlAssignment();
  void DeleteControlAssignment(std::size_t index);
  void ClearControlAssignment();
  std::size_t SizeControlAssignment() const;

  /// Makes `GuidanceAllocation` the alternative held, with an empty run; no effect when it is already.
  void SelectGuidanceAllocation();
  /// The run of "GAN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  GuidanceAllocation const& GetGuidanceAllocation(std::size_t index) const;
  GuidanceAllocation& GetGuidanceAllocation(std::size_t index);
  GuidanceAllocation& AppendGuidanceAllocation();
  void AppendGuidanceAllocation(GuidanceAllocation* value);
  GuidanceAllocation& InsertGuidanceAllocation(std::size_t index);
  void InsertGuidanceAllocation(std::size_t index, GuidanceAllocation* value);
  void AssignGuidanceAllocation(std::size_t index, GuidanceAllocation const& value);
  void AssignGuidanceAllocation(std::size_t index, GuidanceAllocation* value);
  GuidanceAllocation& BackGuidanceAllocation();
  void DeleteGuidanceAllocation(std::size_t index);
  void ClearGuidanceAllocation();
  std::size_t SizeGuidanceAllocation() const;

  /// Makes `P917Comment` the alternative held, with no object yet; no effect when it is already.
  void SelectP917Comment();
  /// The "P917_comment". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  P917Comment const& GetP917Comment() const;
  P917Comment& GetP917Comment();
  void SetP917Comment(std::string const& text);

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Task, element "TSK". A piece of work, planned or done, with its place, people, machines, products, set
/// values and records.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Task {
 public:
  Task();
  Task(Task const& other);
  /// Leaves `other` behind like a new object.
  Task(Task&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Task(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Task* clone() const;
  virtual ~Task();
  /// Deep; when copying fails the target is unchanged.
  Task& operator=(Task const& other);
  Task& operator=(Task&& other) noexcept;
  void swap(Task& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Identifier of the task, unique within the transfer set. Attribute "A", required; 4 to 14 characters,
  /// pattern (TSK|TSK-)([0-9])+.
  lmx::elmx_error SetId(std::string const& value) { return m_Id.set(value); }
  std::string const& GetId() const { return m_Id.get(); }
  bool IssetId() const { return m_Id.is_set(); }
  void UnsetId() { m_Id.unset(); }

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Customer for whom the task is done. Attribute "C", optional; 4 to 14 characters, pattern
  /// (CTR|CTR-)([0-9])+.
  lmx::elmx_error SetCustomerIdRef(std::string const& value) { return m_CustomerIdRef.set(value); }
  std::string const& GetCustomerIdRef() const { return m_CustomerIdRef.get(); }
  bool IssetCustomerIdRef() const { return m_CustomerIdRef.is_set(); }
  void UnsetCustomerIdRef() { m_CustomerIdRef.unset(); }

  /// Farm on which the task is done. Attribute "D", optional; 4 to 14 characters, pattern (FRM|FRM-)([0-9])+.
  lmx::elmx_error SetFarmIdRef(std::string const& value) { return m_FarmIdRef.set(value); }
  std::string const& GetFarmIdRef() const { return m_FarmIdRef.get(); }
  bool IssetFarmIdRef() const { return m_FarmIdRef.is_set(); }
  void UnsetFarmIdRef() { m_FarmIdRef.unset(); }

  /// Partfield on which the task is done. Attribute "E", optional; 4 to 14 characters, pattern
  /// (PFD|PFD-)([0-9])+.
  lmx::elmx_error SetFieldIdRef(std::string const& value) { return m_FieldIdRef.set(value); }
  std::string const& GetFieldIdRef() const { return m_FieldIdRef.get(); }
  bool IssetFieldIdRef() const { return m_FieldIdRef.is_set(); }
  void UnsetFieldIdRef() { m_FieldIdRef.unset(); }

  /// Worker who is responsible for the task. Attribute "F", optional; 4 to 14 characters, pattern
  /// (WKR|WKR-)([0-9])+.
  lmx::elmx_error SetResponsibleWorkerIdRef(std::string const& value) { return m_ResponsibleWorkerIdRef.set(value); }
  std::string const& GetResponsibleWorkerIdRef() const { return m_ResponsibleWorkerIdRef.get(); }
  bool IssetResponsibleWorkerIdRef() const { return m_ResponsibleWorkerIdRef.is_set(); }
  void UnsetResponsibleWorkerIdRef() { m_ResponsibleWorkerIdRef.unset(); }

  /// State of the task: 1 planned, 2 running, 3 paused, 4 completed, 5 template, 6 cancelled. Attribute "G",
  /// required; one of "1", "2", "3", "4", "5", "6".
  lmx::elmx_error SetStatus(std::string const& value) { return m_Status.set(value); }
  std::string const& GetStatus() const { return m_Status.get(); }
  bool IssetStatus() const { return m_Status.is_set(); }
  void UnsetStatus() { m_Status.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumStatus() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumStatus(elmx_enums code);

  /// Code of the treatment zone that is the task's default. Attribute "H", optional; 0 to 254.
  lmx::elmx_error SetDefaultTreatmentZoneCode(unsigned char const& value) { return m_DefaultTreatmentZoneCode.set(value); }
  unsigned char const& GetDefaultTreatmentZoneCode() const { return m_DefaultTreatmentZoneCode.get(); }
  bool IssetDefaultTreatmentZoneCode() const { return m_DefaultTreatmentZoneCode.is_set(); }
  void UnsetDefaultTreatmentZoneCode() { m_DefaultTreatmentZoneCode.unset(); }

  /// Code of the treatment zone that applies while the position is lost. Attribute "I", optional; 0 to 254.
  lmx::elmx_error SetPositionLostTreatmentZoneCode(unsigned char const& value) { return m_PositionLostTreatmentZoneCode.set(value); }
  unsigned char const& GetPositionLostTreatmentZoneCode() const { return m_PositionLostTreatmentZoneCode.get(); }
  bool IssetPositionLostTreatmentZoneCode() const { return m_PositionLostTreatmentZoneCode.is_set(); }
  void UnsetPositionLostTreatmentZoneCode() { m_PositionLostTreatmentZoneCode.unset(); }

  /// Code of the treatment zone that applies outside the field. Attribute "J", optional; 0 to 254.
  lmx::elmx_error SetOutOfFieldTreatmentZoneCode(unsigned char const& value) { return m_OutOfFieldTreatmentZoneCode.set(value); }
  unsigned char const& GetOutOfFieldTreatmentZoneCode() const { return m_OutOfFieldTreatmentZoneCode.get(); }
  bool IssetOutOfFieldTreatmentZoneCode() const { return m_OutOfFieldTreatmentZoneCode.is_set(); }
  void UnsetOutOfFieldTreatmentZoneCode() { m_OutOfFieldTreatmentZoneCode.unset(); }

  /// Extension: metadata of the job. Attribute "P007_JobMetaData", optional.
  lmx::elmx_error SetP007JobMetaData(std::string const& value) { return m_P007JobMetaData.set(value); }
  std::string const& GetP007JobMetaData() const { return m_P007JobMetaData.get(); }
  bool IssetP007JobMetaData() const { return m_P007JobMetaData.is_set(); }
  void UnsetP007JobMetaData() { m_P007JobMetaData.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerTask const& GetInnerTask(std::size_t index) const;
  InnerTask& GetInnerTask(std::size_t index);
  InnerTask& AppendInnerTask();
  void AppendInnerTask(InnerTask* value);
  InnerTask& InsertInnerTask(std::size_t index);
  void InsertInnerTask(std::size_t index, InnerTask* value);
  void AssignInnerTask(std::size_t index, InnerTask const& value);
  void AssignInnerTask(std::size_t index, InnerTask* value);
  InnerTask& BackInnerTask();
  void DeleteInnerTask(std::size_t index);
  void ClearInnerTask();
  std::size_t SizeInnerTask() const;

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
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<std::string> m_CustomerIdRef;
  lmx::ct_simple_pod_optional<std::string> m_FarmIdRef;
  lmx::ct_simple_pod_optional<std::string> m_FieldIdRef;
  lmx::ct_simple_pod_optional<std::string> m_ResponsibleWorkerIdRef;
  lmx::ct_simple_pod_single<std::string> m_Status;
  lmx::ct_simple_pod_optional<unsigned char> m_DefaultTreatmentZoneCode;
  lmx::ct_simple_pod_optional<unsigned char> m_PositionLostTreatmentZoneCode;
  lmx::ct_simple_pod_optional<unsigned char> m_OutOfFieldTreatmentZoneCode;
  lmx::ct_simple_pod_optional<std::string> m_P007JobMetaData;
  lmx::ct_complex_multi<InnerTask> mInnerTask;
};

/// A stretch of the children of `TreatmentZone`: one unbroken run of like siblings, or one child, as `chosen`
/// tells. It has no XML element of its own.
class ISOXML_API InnerTreatmentZone {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    PolygonChosen = 0,
    ProcessDataVariableChosen = 1,
    NothingChosen = 2,
  };

  InnerTreatmentZone();
  InnerTreatmentZone(InnerTreatmentZone const& other);
  /// Leaves `other` behind like a new object.
  InnerTreatmentZone(InnerTreatmentZone&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerTreatmentZone(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerTreatmentZone* clone() const;
  virtual ~InnerTreatmentZone();
  /// Deep; when copying fails the target is unchanged.
  InnerTreatmentZone& operator=(InnerTreatmentZone const& other);
  InnerTreatmentZone& operator=(InnerTreatmentZone&& other) noexcept;
  void swap(InnerTreatmentZone& other) noexcept;
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

  /// Makes `Polygon` the alternative held, with an empty run; no effect when it is already.
  void SelectPolygon();
  /// The run of "PLN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Polygon const& GetPolygon(std::size_t index) const;
  Polygon& GetPolygon(std::size_t index);
  Polygon& AppendPolygon();
  void AppendPolygon(Polygon* value);
  Polygon& InsertPolygon(std::size_t index);
  void InsertPolygon(std::size_t index, Polygon* value);
  void AssignPolygon(std::size_t index, Polygon const& value);
  void AssignPolygon(std::size_t index, Polygon* value);
  Polygon& BackPolygon();
  void DeletePolygon(std::size_t index);
  void ClearPolygon();
  std::size_t SizePolygon() const;

  /// Makes `ProcessDataVariable` the alternative held, with an empty run; no effect when it is already.
  void SelectProcessDataVariable();
  /// The run of "PDV". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ProcessDataVariable const& GetProcessDataVariable(std::size_t index) const;
  ProcessDataVariable& GetProcessDataVariable(std::size_t index);
  ProcessDataVariable& AppendProcessDataVariable();
  void AppendProcessDataVariable(ProcessDataVariable* value);
  ProcessDataVariable& InsertProcessDataVariable(std::size_t index);
  void InsertProcessDataVariable(std::size_t index, ProcessDataVariable* value);
  void AssignProcessDataVariable(std::size_t index, ProcessDataVariable const& value);
  void AssignProcessDataVariable(std::size_t index, ProcessDataVariable* value);
  ProcessDataVariable& BackProcessDataVariable();
  void DeleteProcessDataVariable(std::size_t index);
  void ClearProcessDataVariable();
  std::size_t SizeProcessDataVariable() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// TreatmentZone, element "TZN". A part of the task's area, or a code in its grid, that is to be treated with
/// one set of process data values.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API TreatmentZone {
 public:
  TreatmentZone();
  TreatmentZone(TreatmentZone const& other);
  /// Leaves `other` behind like a new object.
  TreatmentZone(TreatmentZone&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  TreatmentZone(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual TreatmentZone* clone() const;
  virtual ~TreatmentZone();
  /// Deep; when copying fails the target is unchanged.
  TreatmentZone& operator=(TreatmentZone const& other);
  TreatmentZone& operator=(TreatmentZone&& other) noexcept;
  void swap(TreatmentZone& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Number of the zone, by which the task and its grid refer to it. Attribute "A", required; 0 to 254.
  lmx::elmx_error SetCode(unsigned char const& value) { return m_Code.set(value); }
  unsigned char const& GetCode() const { return m_Code.get(); }
  bool IssetCode() const { return m_Code.is_set(); }
  void UnsetCode() { m_Code.unset(); }

  /// Name shown to the operator. Attribute "B", optional; at most 32 characters.
  lmx::elmx_error SetDesignator(std::string const& value) { return m_Designator.set(value); }
  std::string const& GetDesignator() const { return m_Designator.get(); }
  bool IssetDesignator() const { return m_Designator.is_set(); }
  void UnsetDesignator() { m_Designator.unset(); }

  /// Display colour, as an index into the colour table of ISO 11783-6. Attribute "C", optional; 0 to 254.
  lmx::elmx_error SetColour(unsigned char const& value) { return m_Colour.set(value); }
  unsigned char const& GetColour() const { return m_Colour.get(); }
  bool IssetColour() const { return m_Colour.is_set(); }
  void UnsetColour() { m_Colour.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerTreatmentZone const& GetInnerTreatmentZone(std::size_t index) const;
  InnerTreatmentZone& GetInnerTreatmentZone(std::size_t index);
  InnerTreatmentZone& AppendInnerTreatmentZone();
  void AppendInnerTreatmentZone(InnerTreatmentZone* value);
  InnerTreatmentZone& InsertInnerTreatmentZone(std::size_t index);
  void InsertInnerTreatmentZone(std::size_t index, InnerTreatmentZone* value);
  void AssignInnerTreatmentZone(std::size_t index, InnerTreatmentZone const& value);
  void AssignInnerTreatmentZone(std::size_t index, InnerTreatmentZone* value);
  InnerTreatmentZone& BackInnerTreatmentZone();
  void DeleteInnerTreatmentZone(std::size_t index);
  void ClearInnerTreatmentZone();
  std::size_t SizeInnerTreatmentZone() const;

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
  lmx::ct_simple_pod_single<unsigned char> m_Code;
  lmx::ct_simple_pod_optional<std::string> m_Designator;
  lmx::ct_simple_pod_optional<unsigned char> m_Colour;
  lmx::ct_complex_multi<InnerTreatmentZone> mInnerTreatmentZone;
};

/// A stretch of the children of `ProcessDataVariable`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerProcessDataVariable {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    ProcessDataVariableChosen = 0,
    NothingChosen = 1,
  };

  InnerProcessDataVariable();
  InnerProcessDataVariable(InnerProcessDataVariable const& other);
  /// Leaves `other` behind like a new object.
  InnerProcessDataVariable(InnerProcessDataVariable&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerProcessDataVariable(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerProcessDataVariable* clone() const;
  virtual ~InnerProcessDataVariable();
  /// Deep; when copying fails the target is unchanged.
  InnerProcessDataVariable& operator=(InnerProcessDataVariable const& other);
  InnerProcessDataVariable& operator=(InnerProcessDataVariable&& other) noexcept;
  void swap(InnerProcessDataVariable& other) noexcept;
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

  /// Makes `ProcessDataVariable` the alternative held, with an empty run; no effect when it is already.
  void SelectProcessDataVariable();
  /// The run of "PDV". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  ProcessDataVariable const& GetProcessDataVariable(std::size_t index) const;
  ProcessDataVariable& GetProcessDataVariable(std::size_t index);
  ProcessDataVariable& AppendProcessDataVariable();
  void AppendProcessDataVariable(ProcessDataVariable* value);
  ProcessDataVariable& InsertProcessDataVariable(std::size_t index);
  void InsertProcessDataVariable(std::size_t index, ProcessDataVariable* value);
  void AssignProcessDataVariable(std::size_t index, ProcessDataVariable const& value);
  void AssignProcessDataVariable(std::size_t index, ProcessDataVariable* value);
  ProcessDataVariable& BackProcessDataVariable();
  void DeleteProcessDataVariable(std::size_t index);
  void ClearProcessDataVariable();
  std::size_t SizeProcessDataVariable() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// ProcessDataVariable, element "PDV". A set value for one kind of process data, as a treatment zone
/// prescribes it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ProcessDataVariable {
 public:
  ProcessDataVariable();
  ProcessDataVariable(ProcessDataVariable const& other);
  /// Leaves `other` behind like a new object.
  ProcessDataVariable(ProcessDataVariable&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ProcessDataVariable(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ProcessDataVariable* clone() const;
  virtual ~ProcessDataVariable();
  /// Deep; when copying fails the target is unchanged.
  ProcessDataVariable& operator=(ProcessDataVariable const& other);
  ProcessDataVariable& operator=(ProcessDataVariable&& other) noexcept;
  void swap(ProcessDataVariable& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// DDI of the process data, two bytes, four hexadecimal digits. Attribute "A", required; 2 bytes, written
  /// as hexadecimal.
  lmx::elmx_error SetDDI(lmx::c_binary const& value) { return m_DDI.set(value); }
  lmx::c_binary const& GetDDI() const { return m_DDI.get(); }
  bool IssetDDI() const { return m_DDI.is_set(); }
  void UnsetDDI() { m_DDI.unset(); }

  /// Raw integer value, in the unit and resolution of the DDI. Attribute "B", required; -2147483648 to
  /// 2147483647.
  lmx::elmx_error SetValue(int const& value) { return m_Value.set(value); }
  int const& GetValue() const { return m_Value.get(); }
  bool IssetValue() const { return m_Value.is_set(); }
  void UnsetValue() { m_Value.unset(); }

  /// Product to which the value applies. Attribute "C", optional; 4 to 14 characters, pattern
  /// (PDT|PDT-)([0-9])+.
  lmx::elmx_error SetProductIdRef(std::string const& value) { return m_ProductIdRef.set(value); }
  std::string const& GetProductIdRef() const { return m_ProductIdRef.get(); }
  bool IssetProductIdRef() const { return m_ProductIdRef.is_set(); }
  void UnsetProductIdRef() { m_ProductIdRef.unset(); }

  /// Device element to which the value is directed. Attribute "D", optional; 4 to 14 characters, pattern
  /// (DET|DET-)([0-9])+.
  lmx::elmx_error SetDeviceElementIdRef(std::string const& value) { return m_DeviceElementIdRef.set(value); }
  std::string const& GetDeviceElementIdRef() const { return m_DeviceElementIdRef.get(); }
  bool IssetDeviceElementIdRef() const { return m_DeviceElementIdRef.is_set(); }
  void UnsetDeviceElementIdRef() { m_DeviceElementIdRef.unset(); }

  /// Value presentation that scales the value for display. Attribute "E", optional; 4 to 14 characters,
  /// pattern (VPN|VPN-)([0-9])+.
  lmx::elmx_error SetValuePresentationIdRef(std::string const& value) { return m_rare.get_or_create().m_ValuePresentationIdRef.set(value); }
  std::string const& GetValuePresentationIdRef() const { return m_rare.get().m_ValuePresentationIdRef.get(); }
  bool IssetValuePresentationIdRef() const { return m_rare.get().m_ValuePresentationIdRef.is_set(); }
  void UnsetValuePresentationIdRef() { if (m_rare.is_there()) m_rare.get_or_create().m_ValuePresentationIdRef.unset(); }

  /// Value of the Actual Cultural Practice DDI that the variable is meant for. Attribute "F", optional;
  /// -2147483648 to 2147483647.
  lmx::elmx_error SetActualCulturalPracticeValue(int const& value) { return m_rare.get_or_create().m_ActualCulturalPracticeValue.set(value); }
  int const& GetActualCulturalPracticeValue() const { return m_rare.get().m_ActualCulturalPracticeValue.get(); }
  bool IssetActualCulturalPracticeValue() const { return m_rare.get().m_ActualCulturalPracticeValue.is_set(); }
  void UnsetActualCulturalPracticeValue() { if (m_rare.is_there()) m_rare.get_or_create().m_ActualCulturalPracticeValue.unset(); }

  /// Value of the Element Type Instance DDI that the variable is meant for. Attribute "G", optional;
  /// -2147483648 to 2147483647.
  lmx::elmx_error SetElementTypeInstanceValue(int const& value) { return m_rare.get_or_create().m_ElementTypeInstanceValue.set(value); }
  int const& GetElementTypeInstanceValue() const { return m_rare.get().m_ElementTypeInstanceValue.get(); }
  bool IssetElementTypeInstanceValue() const { return m_rare.get().m_ElementTypeInstanceValue.is_set(); }
  void UnsetElementTypeInstanceValue() { if (m_rare.is_there()) m_rare.get_or_create().m_ElementTypeInstanceValue.unset(); }

  /// Extension: name of the file that holds the prescription map. Attribute "P917_rxmap", optional; 12
  /// characters, pattern ([0-9]|[A-Z]){8}.([0-9]|[A-Z]){3}.
  lmx::elmx_error SetP917Rxmap(std::string const& value) { return m_rare.get_or_create().m_P917Rxmap.set(value); }
  std::string const& GetP917Rxmap() const { return m_rare.get().m_P917Rxmap.get(); }
  bool IssetP917Rxmap() const { return m_rare.get().m_P917Rxmap.is_set(); }
  void UnsetP917Rxmap() { if (m_rare.is_there()) m_rare.get_or_create().m_P917Rxmap.unset(); }

  /// Extension: column of the prescription source that supplies the value. Attribute "P917_rxcolumn",
  /// optional; at most 64 characters.
  lmx::elmx_error SetP917Rxcolumn(std::string const& value) { return m_rare.get_or_create().m_P917Rxcolumn.set(value); }
  std::string const& GetP917Rxcolumn() const { return m_rare.get().m_P917Rxcolumn.get(); }
  bool IssetP917Rxcolumn() const { return m_rare.get().m_P917Rxcolumn.is_set(); }
  void UnsetP917Rxcolumn() { if (m_rare.is_there()) m_rare.get_or_create().m_P917Rxcolumn.unset(); }

  /// Extension: unit of the prescription column, as text. Attribute "P917_rxunit", optional; at most 64
  /// characters.
  lmx::elmx_error SetP917Rxunit(std::string const& value) { return m_rare.get_or_create().m_P917Rxunit.set(value); }
  std::string const& GetP917Rxunit() const { return m_rare.get().m_P917Rxunit.get(); }
  bool IssetP917Rxunit() const { return m_rare.get().m_P917Rxunit.is_set(); }
  void UnsetP917Rxunit() { if (m_rare.is_there()) m_rare.get_or_create().m_P917Rxunit.unset(); }

  /// Extension: conversion rate of the prescription. Attribute "P917_rxconvrate", optional; 0.000000001 to
  /// 100000000.0.
  lmx::elmx_error SetP917Rxconvrate(velmo::lmx::high_precision_c_decimal const& value) { return m_rare.get_or_create().m_P917Rxconvrate.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetP917Rxconvrate() const { return m_rare.get().m_P917Rxconvrate.get(); }
  bool IssetP917Rxconvrate() const { return m_rare.get().m_P917Rxconvrate.is_set(); }
  void UnsetP917Rxconvrate() { if (m_rare.is_there()) m_rare.get_or_create().m_P917Rxconvrate.unset(); }

  /// Extension: rate of the prescription without conversion. Attribute "P917_rxwoconvrate", optional;
  /// 0.000000001 to 100000000.0.
  lmx::elmx_error SetP917Rxwoconvrate(velmo::lmx::high_precision_c_decimal const& value) { return m_rare.get_or_create().m_P917Rxwoconvrate.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetP917Rxwoconvrate() const { return m_rare.get().m_P917Rxwoconvrate.get(); }
  bool IssetP917Rxwoconvrate() const { return m_rare.get().m_P917Rxwoconvrate.is_set(); }
  void UnsetP917Rxwoconvrate() { if (m_rare.is_there()) m_rare.get_or_create().m_P917Rxwoconvrate.unset(); }

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerProcessDataVariable const& GetInnerProcessDataVariable(std::size_t index) const;
  InnerProcessDataVariable& GetInnerProcessDataVariable(std::size_t index);
  InnerProcessDataVariable& AppendInnerProcessDataVariable();
  void AppendInnerProcessDataVariable(InnerProcessDataVariable* value);
  InnerProcessDataVariable& InsertInnerProcessDataVariable(std::size_t index);
  void InsertInnerProcessDataVariable(std::size_t index, InnerProcessDataVariable* value);
  void AssignInnerProcessDataVariable(std::size_t index, InnerProcessDataVariable const& value);
  void AssignInnerProcessDataVariable(std::size_t index, InnerProcessDataVariable* value);
  InnerProcessDataVariable& BackInnerProcessDataVariable();
  void DeleteInnerProcessDataVariable(std::size_t index);
  void ClearInnerProcessDataVariable();
  std::size_t SizeInnerProcessDataVariable() const;

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
  lmx::ct_simple_pod_single<lmx::c_binary> m_DDI;
  lmx::ct_simple_pod_single<int> m_Value;
  lmx::ct_simple_pod_optional<std::string> m_ProductIdRef;
  lmx::ct_simple_pod_optional<std::string> m_DeviceElementIdRef;
  struct rare_fields {
    lmx::ct_simple_pod_optional<std::string> m_ValuePresentationIdRef;
    lmx::ct_simple_pod_optional<int> m_ActualCulturalPracticeValue;
    lmx::ct_simple_pod_optional<int> m_ElementTypeInstanceValue;
    lmx::ct_simple_pod_optional<std::string> m_P917Rxmap;
    lmx::ct_simple_pod_optional<std::string> m_P917Rxcolumn;
    lmx::ct_simple_pod_optional<std::string> m_P917Rxunit;
    lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_P917Rxconvrate;
    lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_P917Rxwoconvrate;
  };
  lmx::ct_rare<rare_fields> m_rare;
  lmx::ct_complex_multi<InnerProcessDataVariable> mInnerProcessDataVariable;
};

/// Grid, element "GRD". A raster over the field whose cells, held in a binary file, carry zone codes or
/// process data values.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Grid {
 public:
  Grid();
  Grid(Grid const& other);
  /// Leaves `other` behind like a new object.
  Grid(Grid&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Grid(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Grid* clone() const;
  virtual ~Grid();
  /// Deep; when copying fails the target is unchanged.
  Grid& operator=(Grid const& other);
  Grid& operator=(Grid&& other) noexcept;
  void swap(Grid& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Latitude of the grid's southern edge in degrees on WGS 84, north positive. Attribute "A", required;
  /// -90.0 to 90.0.
  lmx::elmx_error SetMinimumNorthPosition(velmo::lmx::high_precision_c_decimal const& value) { return m_MinimumNorthPosition.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetMinimumNorthPosition() const { return m_MinimumNorthPosition.get(); }
  bool IssetMinimumNorthPosition() const { return m_MinimumNorthPosition.is_set(); }
  void UnsetMinimumNorthPosition() { m_MinimumNorthPosition.unset(); }

  /// Longitude of the grid's western edge in degrees on WGS 84, east positive. Attribute "B", required;
  /// -180.0 to 180.0.
  lmx::elmx_error SetMinimumEastPosition(velmo::lmx::high_precision_c_decimal const& value) { return m_MinimumEastPosition.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetMinimumEastPosition() const { return m_MinimumEastPosition.get(); }
  bool IssetMinimumEastPosition() const { return m_MinimumEastPosition.is_set(); }
  void UnsetMinimumEastPosition() { m_MinimumEastPosition.unset(); }

  /// Size of a cell from south to north, in degrees. Attribute "C", required; 0.0 to 1.0.
  lmx::elmx_error SetCellNorthSize(double const& value) { return m_CellNorthSize.set(value); }
  double const& GetCellNorthSize() const { return m_CellNorthSize.get(); }
  bool IssetCellNorthSize() const { return m_CellNorthSize.is_set(); }
  void UnsetCellNorthSize() { m_CellNorthSize.unset(); }

  /// Size of a cell from west to east, in degrees. Attribute "D", required; 0.0 to 1.0.
  lmx::elmx_error SetCellEastSize(double const& value) { return m_CellEastSize.set(value); }
  double const& GetCellEastSize() const { return m_CellEastSize.get(); }
  bool IssetCellEastSize() const { return m_CellEastSize.is_set(); }
  void UnsetCellEastSize() { m_CellEastSize.unset(); }

  /// Number of columns, counted from west to east. Attribute "E", required; 0 to 4294967295.
  lmx::elmx_error SetMaximumColumn(unsigned int const& value) { return m_MaximumColumn.set(value); }
  unsigned int const& GetMaximumColumn() const { return m_MaximumColumn.get(); }
  bool IssetMaximumColumn() const { return m_MaximumColumn.is_set(); }
  void UnsetMaximumColumn() { m_MaximumColumn.unset(); }

  /// Number of rows, counted from south to north. Attribute "F", required; 0 to 4294967295.
  lmx::elmx_error SetMaximumRow(unsigned int const& value) { return m_MaximumRow.set(value); }
  unsigned int const& GetMaximumRow() const { return m_MaximumRow.get(); }
  bool IssetMaximumRow() const { return m_MaximumRow.is_set(); }
  void UnsetMaximumRow() { m_MaximumRow.unset(); }

  /// Name of the binary grid file without its extension. Attribute "G", required; 8 characters, pattern
  /// GRD[0-9][0-9][0-9][0-9][0-9].
  lmx::elmx_error SetFilename(std::string const& value) { return m_Filename.set(value); }
  std::string const& GetFilename() const { return m_Filename.get(); }
  bool IssetFilename() const { return m_Filename.is_set(); }
  void UnsetFilename() { m_Filename.unset(); }

  /// Length of the grid file in bytes. Attribute "H", optional; 0 to 4294967294.
  lmx::elmx_error SetFilelength(unsigned int const& value) { return m_Filelength.set(value); }
  unsigned int const& GetFilelength() const { return m_Filelength.get(); }
  bool IssetFilelength() const { return m_Filelength.is_set(); }
  void UnsetFilelength() { m_Filelength.unset(); }

  /// Content of the cells: 1 treatment zone codes, 2 process data values. Attribute "I", required; one of
  /// "1", "2".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// For type 2, the treatment zone whose process data variables describe the cell values. Attribute "J",
  /// optional; 0 to 254.
  lmx::elmx_error SetTreatmentZoneCode(unsigned char const& value) { return m_TreatmentZoneCode.set(value); }
  unsigned char const& GetTreatmentZoneCode() const { return m_TreatmentZoneCode.get(); }
  bool IssetTreatmentZoneCode() const { return m_TreatmentZoneCode.is_set(); }
  void UnsetTreatmentZoneCode() { m_TreatmentZoneCode.unset(); }

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
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_MinimumNorthPosition;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_MinimumEastPosition;
  lmx::ct_simple_pod_single<double> m_CellNorthSize;
  lmx::ct_simple_pod_single<double> m_CellEastSize;
  lmx::ct_simple_pod_single<unsigned int> m_MaximumColumn;
  lmx::ct_simple_pod_single<unsigned int> m_MaximumRow;
  lmx::ct_simple_pod_single<std::string> m_Filename;
  lmx::ct_simple_pod_optional<unsigned int> m_Filelength;
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_simple_pod_optional<unsigned char> m_TreatmentZoneCode;
};

/// A stretch of the children of `Time`: one unbroken run of like siblings, or one child, as `chosen` tells.
/// It has no XML element of its own.
class ISOXML_API InnerTime {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    PositionChosen = 0,
    DataLogValueChosen = 1,
    NothingChosen = 2,
  };

  InnerTime();
  InnerTime(InnerTime const& other);
  /// Leaves `other` behind like a new object.
  InnerTime(InnerTime&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerTime(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerTime* clone() const;
  virtual ~InnerTime();
  /// Deep; when copying fails the target is unchanged.
  InnerTime& operator=(InnerTime const& other);
  InnerTime& operator=(InnerTime&& other) noexcept;
  void swap(InnerTime& other) noexcept;
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

  /// Makes `Position` the alternative held, with an empty run; no effect when it is already.
  void SelectPosition();
  /// The run of "PTN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Position const& GetPosition(std::size_t index) const;
  Position& GetPosition(std::size_t index);
  Position& AppendPosition();
  void AppendPosition(Position* value);
  Position& InsertPosition(std::size_t index);
  void InsertPosition(std::size_t index, Position* value);
  void AssignPosition(std::size_t index, Position const& value);
  void AssignPosition(std::size_t index, Position* value);
  Position& BackPosition();
  void DeletePosition(std::size_t index);
  void ClearPosition();
  std::size_t SizePosition() const;

  /// Makes `DataLogValue` the alternative held, with an empty run; no effect when it is already.
  void SelectDataLogValue();
  /// The run of "DLV". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  DataLogValue const& GetDataLogValue(std::size_t index) const;
  DataLogValue& GetDataLogValue(std::size_t index);
  DataLogValue& AppendDataLogValue();
  void AppendDataLogValue(DataLogValue* value);
  DataLogValue& InsertDataLogValue(std::size_t index);
  void InsertDataLogValue(std::size_t index, DataLogValue* value);
  void AssignDataLogValue(std::size_t index, DataLogValue const& value);
  void AssignDataLogValue(std::size_t index, DataLogValue* value);
  DataLogValue& BackDataLogValue();
  void DeleteDataLogValue(std::size_t index);
  void ClearDataLogValue();
  std::size_t SizeDataLogValue() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// Time, element "TIM". A span of time in a task, planned or recorded, with totals and positions that belong
/// to it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Time {
 public:
  Time();
  Time(Time const& other);
  /// Leaves `other` behind like a new object.
  Time(Time&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Time(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Time* clone() const;
  virtual ~Time();
  /// Deep; when copying fails the target is unchanged.
  Time& operator=(Time const& other);
  Time& operator=(Time&& other) noexcept;
  void swap(Time& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Date and time at which the span begins. Attribute "A", required.
  lmx::elmx_error SetStart(lmx::c_datetime const& value) { return m_Start.set(value); }
  lmx::c_datetime const& GetStart() const { return m_Start.get(); }
  bool IssetStart() const { return m_Start.is_set(); }
  void UnsetStart() { m_Start.unset(); }

  /// Date and time at which the span ends. Attribute "B", optional.
  lmx::elmx_error SetStop(lmx::c_datetime const& value) { return m_Stop.set(value); }
  lmx::c_datetime const& GetStop() const { return m_Stop.get(); }
  bool IssetStop() const { return m_Stop.is_set(); }
  void UnsetStop() { m_Stop.unset(); }

  /// Length of the span in seconds. Attribute "C", optional; 0 to 4294967294.
  lmx::elmx_error SetDuration(unsigned int const& value) { return m_Duration.set(value); }
  unsigned int const& GetDuration() const { return m_Duration.get(); }
  bool IssetDuration() const { return m_Duration.is_set(); }
  void UnsetDuration() { m_Duration.unset(); }

  /// Kind of time: 1 planned, 2 preliminary, 4 effective, 5 ineffective, 6 repair, 7 clearing, 8 powered
  /// down. Attribute "D", required; one of "1", "2", "4", "5", "6", "7", "8".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// The children, in document order. The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  InnerTime const& GetInnerTime(std::size_t index) const;
  InnerTime& GetInnerTime(std::size_t index);
  InnerTime& AppendInnerTime();
  void AppendInnerTime(InnerTime* value);
  InnerTime& InsertInnerTime(std::size_t index);
  void InsertInnerTime(std::size_t index, InnerTime* value);
  void AssignInnerTime(std::size_t index, InnerTime const& value);
  void AssignInnerTime(std::size_t index, InnerTime* value);
  InnerTime& BackInnerTime();
  void DeleteInnerTime(std::size_t index);
  void ClearInnerTime();
  std::size_t SizeInnerTime() const;

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
  lmx::ct_simple_pod_single<lmx::c_datetime> m_Start;
  lmx::ct_simple_pod_optional<lmx::c_datetime> m_Stop;
  lmx::ct_simple_pod_optional<unsigned int> m_Duration;
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_complex_multi<InnerTime> mInnerTime;
};

/// Position, element "PTN". A position from a satellite receiver, with its quality and time.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Position {
 public:
  Position();
  Position(Position const& other);
  /// Leaves `other` behind like a new object.
  Position(Position&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Position(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Position* clone() const;
  virtual ~Position();
  /// Deep; when copying fails the target is unchanged.
  Position& operator=(Position const& other);
  Position& operator=(Position&& other) noexcept;
  void swap(Position& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Latitude in degrees on WGS 84, north positive. Attribute "A", required; -90.0 to 90.0.
  lmx::elmx_error SetNorth(velmo::lmx::high_precision_c_decimal const& value) { return m_North.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetNorth() const { return m_North.get(); }
  bool IssetNorth() const { return m_North.is_set(); }
  void UnsetNorth() { m_North.unset(); }

  /// Longitude in degrees on WGS 84, east positive. Attribute "B", required; -180.0 to 180.0.
  lmx::elmx_error SetEast(velmo::lmx::high_precision_c_decimal const& value) { return m_East.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetEast() const { return m_East.get(); }
  bool IssetEast() const { return m_East.is_set(); }
  void UnsetEast() { m_East.unset(); }

  /// Height in millimetres above the WGS 84 ellipsoid. Attribute "C", optional; -2147483648 to 2147483647.
  lmx::elmx_error SetAltitude(int const& value) { return m_Altitude.set(value); }
  int const& GetAltitude() const { return m_Altitude.get(); }
  bool IssetAltitude() const { return m_Altitude.is_set(); }
  void UnsetAltitude() { m_Altitude.unset(); }

  /// Fix: 0 none, 1 GNSS, 2 DGNSS, 3 precise, 4 RTK fixed, 5 RTK float, 6 estimated, 7 manual, 8 simulated, 9
  /// to 13 reserved, 14 error, 15 absent. Attribute "D", required; one of "0", "1", "2", "3", "4", "5", "6",
  /// "7", "8", "9", "10", "11", "12", "13", "14", "15".
  lmx::elmx_error SetStatus(std::string const& value) { return m_Status.set(value); }
  std::string const& GetStatus() const { return m_Status.get(); }
  bool IssetStatus() const { return m_Status.is_set(); }
  void UnsetStatus() { m_Status.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumStatus() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumStatus(elmx_enums code);

  /// Position dilution of precision. Attribute "E", optional; 0.0 to 99.9.
  lmx::elmx_error SetPDOP(velmo::lmx::high_precision_c_decimal const& value) { return m_PDOP.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetPDOP() const { return m_PDOP.get(); }
  bool IssetPDOP() const { return m_PDOP.is_set(); }
  void UnsetPDOP() { m_PDOP.unset(); }

  /// Horizontal dilution of precision. Attribute "F", optional; 0.0 to 99.9.
  lmx::elmx_error SetHDOP(velmo::lmx::high_precision_c_decimal const& value) { return m_HDOP.set(value); }
  velmo::lmx::high_precision_c_decimal const& GetHDOP() const { return m_HDOP.get(); }
  bool IssetHDOP() const { return m_HDOP.is_set(); }
  void UnsetHDOP() { m_HDOP.unset(); }

  /// Number of satellites used for the position. Attribute "G", optional; 0 to 254.
  lmx::elmx_error SetNumberOfSatelites(unsigned char const& value) { return m_NumberOfSatelites.set(value); }
  unsigned char const& GetNumberOfSatelites() const { return m_NumberOfSatelites.get(); }
  bool IssetNumberOfSatelites() const { return m_NumberOfSatelites.is_set(); }
  void UnsetNumberOfSatelites() { m_NumberOfSatelites.unset(); }

  /// UTC time of day of the position, in milliseconds since midnight. Attribute "H", optional; 0 to
  /// 4294967294.
  lmx::elmx_error SetGpsUtcTime(unsigned int const& value) { return m_GpsUtcTime.set(value); }
  unsigned int const& GetGpsUtcTime() const { return m_GpsUtcTime.get(); }
  bool IssetGpsUtcTime() const { return m_GpsUtcTime.is_set(); }
  void UnsetGpsUtcTime() { m_GpsUtcTime.unset(); }

  /// UTC date of the position, in days since 1980-01-01. Attribute "I", optional; 0 to 65534.
  lmx::elmx_error SetPgsUtcDate(unsigned short const& value) { return m_PgsUtcDate.set(value); }
  unsigned short const& GetPgsUtcDate() const { return m_PgsUtcDate.get(); }
  bool IssetPgsUtcDate() const { return m_PgsUtcDate.is_set(); }
  void UnsetPgsUtcDate() { m_PgsUtcDate.unset(); }

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
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_North;
  lmx::ct_simple_pod_single<velmo::lmx::high_precision_c_decimal> m_East;
  lmx::ct_simple_pod_optional<int> m_Altitude;
  lmx::ct_simple_pod_single<std::string> m_Status;
  lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_PDOP;
  lmx::ct_simple_pod_optional<velmo::lmx::high_precision_c_decimal> m_HDOP;
  lmx::ct_simple_pod_optional<unsigned char> m_NumberOfSatelites;
  lmx::ct_simple_pod_optional<unsigned int> m_GpsUtcTime;
  lmx::ct_simple_pod_optional<unsigned short> m_PgsUtcDate;
};

/// DataLogTrigger, element "DLT". Orders the task controller to log a value and tells what starts each
/// record.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DataLogTrigger {
 public:
  DataLogTrigger();
  DataLogTrigger(DataLogTrigger const& other);
  /// Leaves `other` behind like a new object.
  DataLogTrigger(DataLogTrigger&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DataLogTrigger(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DataLogTrigger* clone() const;
  virtual ~DataLogTrigger();
  /// Deep; when copying fails the target is unchanged.
  DataLogTrigger& operator=(DataLogTrigger const& other);
  DataLogTrigger& operator=(DataLogTrigger&& other) noexcept;
  void swap(DataLogTrigger& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// DDI of the value to log, two bytes, four hexadecimal digits. Attribute "A", required; 2 bytes, written
  /// as hexadecimal.
  lmx::elmx_error SetDDI(lmx::c_binary const& value) { return m_DDI.set(value); }
  lmx::c_binary const& GetDDI() const { return m_DDI.get(); }
  bool IssetDDI() const { return m_DDI.is_set(); }
  void UnsetDDI() { m_DDI.unset(); }

  /// Sum of the triggers: 1 time interval, 2 distance interval, 4 threshold limits, 8 change, 16 total.
  /// Attribute "B", required; 1 to 31.
  lmx::elmx_error SetMethod(unsigned char const& value) { return m_Method.set(value); }
  unsigned char const& GetMethod() const { return m_Method.get(); }
  bool IssetMethod() const { return m_Method.is_set(); }
  void UnsetMethod() { m_Method.unset(); }

  /// Distance between records, in millimetres. Attribute "C", optional; 0 to 1000000.
  lmx::elmx_error SetDistanceInterval(unsigned int const& value) { return m_DistanceInterval.set(value); }
  unsigned int const& GetDistanceInterval() const { return m_DistanceInterval.get(); }
  bool IssetDistanceInterval() const { return m_DistanceInterval.is_set(); }
  void UnsetDistanceInterval() { m_DistanceInterval.unset(); }

  /// Time between records, in milliseconds. Attribute "D", optional; 0 to 60000.
  lmx::elmx_error SetTimeInterval(unsigned short const& value) { return m_TimeInterval.set(value); }
  unsigned short const& GetTimeInterval() const { return m_TimeInterval.get(); }
  bool IssetTimeInterval() const { return m_TimeInterval.is_set(); }
  void UnsetTimeInterval() { m_TimeInterval.unset(); }

  /// Lower threshold for logging, as a raw value of the DDI. Attribute "E", optional; -2147483647 to
  /// 2147483647.
  lmx::elmx_error SetThresholdMinimum(int const& value) { return m_ThresholdMinimum.set(value); }
  int const& GetThresholdMinimum() const { return m_ThresholdMinimum.get(); }
  bool IssetThresholdMinimum() const { return m_ThresholdMinimum.is_set(); }
  void UnsetThresholdMinimum() { m_ThresholdMinimum.unset(); }

  /// Upper threshold for logging, as a raw value of the DDI. Attribute "F", optional; -2147483647 to
  /// 2147483647.
  lmx::elmx_error SetThresholdMaximum(int const& value) { return m_ThresholdMaximum.set(value); }
  int const& GetThresholdMaximum() const { return m_ThresholdMaximum.get(); }
  bool IssetThresholdMaximum() const { return m_ThresholdMaximum.is_set(); }
  void UnsetThresholdMaximum() { m_ThresholdMaximum.unset(); }

  /// Change of the value that causes a record, as a raw value of the DDI. Attribute "G", optional;
  /// -2147483647 to 2147483647.
  lmx::elmx_error SetThresholdChange(int const& value) { return m_ThresholdChange.set(value); }
  int const& GetThresholdChange() const { return m_ThresholdChange.get(); }
  bool IssetThresholdChange() const { return m_ThresholdChange.is_set(); }
  void UnsetThresholdChange() { m_ThresholdChange.unset(); }

  /// Device element whose value is logged. Attribute "H", optional; 4 to 14 characters, pattern
  /// (DET|DET-)([0-9])+.
  lmx::elmx_error SetDeviceElementIdRef(std::string const& value) { return m_DeviceElementIdRef.set(value); }
  std::string const& GetDeviceElementIdRef() const { return m_DeviceElementIdRef.get(); }
  bool IssetDeviceElementIdRef() const { return m_DeviceElementIdRef.is_set(); }
  void UnsetDeviceElementIdRef() { m_DeviceElementIdRef.unset(); }

  /// Value presentation that scales the value for display. Attribute "I", optional; 4 to 14 characters,
  /// pattern (VPN|VPN-)([0-9])+.
  lmx::elmx_error SetValuePresentationIdRef(std::string const& value) { return m_ValuePresentationIdRef.set(value); }
  std::string const& GetValuePresentationIdRef() const { return m_ValuePresentationIdRef.get(); }
  bool IssetValuePresentationIdRef() const { return m_ValuePresentationIdRef.is_set(); }
  void UnsetValuePresentationIdRef() { m_ValuePresentationIdRef.unset(); }

  /// Parameter group number of the logged message, for values that are logged by PGN rather than by DDI.
  /// Attribute "J", optional; 0 to 262143.
  lmx::elmx_error SetPGN(unsigned int const& value) { return m_PGN.set(value); }
  unsigned int const& GetPGN() const { return m_PGN.get(); }
  bool IssetPGN() const { return m_PGN.is_set(); }
  void UnsetPGN() { m_PGN.unset(); }

  /// Position of the value's first bit in the data of the parameter group. Attribute "K", optional; 0 to 63.
  lmx::elmx_error SetPGNStartBit(unsigned char const& value) { return m_PGNStartBit.set(value); }
  unsigned char const& GetPGNStartBit() const { return m_PGNStartBit.get(); }
  bool IssetPGNStartBit() const { return m_PGNStartBit.is_set(); }
  void UnsetPGNStartBit() { m_PGNStartBit.unset(); }

  /// Position of the value's last bit in the data of the parameter group. Attribute "L", optional; 0 to 63.
  lmx::elmx_error SetPGNStopBit(unsigned char const& value) { return m_PGNStopBit.set(value); }
  unsigned char const& GetPGNStopBit() const { return m_PGNStopBit.get(); }
  bool IssetPGNStopBit() const { return m_PGNStopBit.is_set(); }
  void UnsetPGNStopBit() { m_PGNStopBit.unset(); }

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
  lmx::ct_simple_pod_single<lmx::c_binary> m_DDI;
  lmx::ct_simple_pod_single<unsigned char> m_Method;
  lmx::ct_simple_pod_optional<unsigned int> m_DistanceInterval;
  lmx::ct_simple_pod_optional<unsigned short> m_TimeInterval;
  lmx::ct_simple_pod_optional<int> m_ThresholdMinimum;
  lmx::ct_simple_pod_optional<int> m_ThresholdMaximum;
  lmx::ct_simple_pod_optional<int> m_ThresholdChange;
  lmx::ct_simple_pod_optional<std::string> m_DeviceElementIdRef;
  lmx::ct_simple_pod_optional<std::string> m_ValuePresentationIdRef;
  lmx::ct_simple_pod_optional<unsigned int> m_PGN;
  lmx::ct_simple_pod_optional<unsigned char> m_PGNStartBit;
  lmx::ct_simple_pod_optional<unsigned char> m_PGNStopBit;
};

/// DataLogValue, element "DLV". A logged value, or in the header of a time log the description of one value
/// of each record.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DataLogValue {
 public:
  DataLogValue();
  DataLogValue(DataLogValue const& other);
  /// Leaves `other` behind like a new object.
  DataLogValue(DataLogValue&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DataLogValue(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DataLogValue* clone() const;
  virtual ~DataLogValue();
  /// Deep; when copying fails the target is unchanged.
  DataLogValue& operator=(DataLogValue const& other);
  DataLogValue& operator=(DataLogValue&& other) noexcept;
  void swap(DataLogValue& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// DDI of the logged process data, two bytes, four hexadecimal digits. Attribute "A", required; 2 bytes,
  /// written as hexadecimal.
  lmx::elmx_error SetPrecessDataDDI(lmx::c_binary const& value) { return m_PrecessDataDDI.set(value); }
  lmx::c_binary const& GetPrecessDataDDI() const { return m_PrecessDataDDI.get(); }
  bool IssetPrecessDataDDI() const { return m_PrecessDataDDI.is_set(); }
  void UnsetPrecessDataDDI() { m_PrecessDataDDI.unset(); }

  /// Raw integer value, in the unit and resolution of the DDI. Attribute "B", required; -2147483648 to
  /// 2147483647.
  lmx::elmx_error SetPrecessDataValue(int const& value) { return m_PrecessDataValue.set(value); }
  int const& GetPrecessDataValue() const { return m_PrecessDataValue.get(); }
  bool IssetPrecessDataValue() const { return m_PrecessDataValue.is_set(); }
  void UnsetPrecessDataValue() { m_PrecessDataValue.unset(); }

  /// Device element that the value comes from. Attribute "C", required; 4 to 14 characters, pattern
  /// (DET|DET-)([0-9])+.
  lmx::elmx_error SetDeviceElementIdRef(std::string const& value) { return m_DeviceElementIdRef.set(value); }
  std::string const& GetDeviceElementIdRef() const { return m_DeviceElementIdRef.get(); }
  bool IssetDeviceElementIdRef() const { return m_DeviceElementIdRef.is_set(); }
  void UnsetDeviceElementIdRef() { m_DeviceElementIdRef.unset(); }

  /// Parameter group number of the logged message, for values that are logged by PGN rather than by DDI.
  /// Attribute "D", optional; 0 to 262143.
  lmx::elmx_error SetPGN(unsigned int const& value) { return m_rare.get_or_create().m_PGN.set(value); }
  unsigned int const& GetPGN() const { return m_rare.get().m_PGN.get(); }
  bool IssetPGN() const { return m_rare.get().m_PGN.is_set(); }
  void UnsetPGN() { if (m_rare.is_there()) m_rare.get_or_create().m_PGN.unset(); }

  /// Position of the value's first bit in the data of the parameter group. Attribute "E", optional; 0 to 63.
  lmx::elmx_error SetPGNStartBit(unsigned char const& value) { return m_rare.get_or_create().m_PGNStartBit.set(value); }
  unsigned char const& GetPGNStartBit() const { return m_rare.get().m_PGNStartBit.get(); }
  bool IssetPGNStartBit() const { return m_rare.get().m_PGNStartBit.is_set(); }
  void UnsetPGNStartBit() { if (m_rare.is_there()) m_rare.get_or_create().m_PGNStartBit.unset(); }

  /// Position of the value's last bit in the data of the parameter group. Attribute "F", optional; 0 to 63.
  lmx::elmx_error SetPGNStopBit(unsigned char const& value) { return m_rare.get_or_create().m_PGNStopBit.set(value); }
  unsigned char const& GetPGNStopBit() const { return m_rare.get().m_PGNStopBit.get(); }
  bool IssetPGNStopBit() const { return m_rare.get().m_PGNStopBit.is_set(); }
  void UnsetPGNStopBit() { if (m_rare.is_there()) m_rare.get_or_create().m_PGNStopBit.unset(); }

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
  lmx::ct_simple_pod_single<lmx::c_binary> m_PrecessDataDDI;
  lmx::ct_simple_pod_single<int> m_PrecessDataValue;
  lmx::ct_simple_pod_single<std::string> m_DeviceElementIdRef;
  struct rare_fields {
    lmx::ct_simple_pod_optional<unsigned int> m_PGN;
    lmx::ct_simple_pod_optional<unsigned char> m_PGNStartBit;
    lmx::ct_simple_pod_optional<unsigned char> m_PGNStopBit;
  };
  lmx::ct_rare<rare_fields> m_rare;
};

/// TimeLog, element "TLG". Names the files in which a task's timed records are logged.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API TimeLog {
 public:
  TimeLog();
  TimeLog(TimeLog const& other);
  /// Leaves `other` behind like a new object.
  TimeLog(TimeLog&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  TimeLog(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual TimeLog* clone() const;
  virtual ~TimeLog();
  /// Deep; when copying fails the target is unchanged.
  TimeLog& operator=(TimeLog const& other);
  TimeLog& operator=(TimeLog&& other) noexcept;
  void swap(TimeLog& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Name of the log files without extension; header and binary records share it. Attribute "A", required; 8
  /// characters, pattern TLG[0-9][0-9][0-9][0-9][0-9].
  lmx::elmx_error SetFilename(std::string const& value) { return m_Filename.set(value); }
  std::string const& GetFilename() const { return m_Filename.get(); }
  bool IssetFilename() const { return m_Filename.is_set(); }
  void UnsetFilename() { m_Filename.unset(); }

  /// Length of the binary log file in bytes. Attribute "B", optional; 0 to 4294967294.
  lmx::elmx_error SetFilelength(unsigned int const& value) { return m_Filelength.set(value); }
  unsigned int const& GetFilelength() const { return m_Filelength.get(); }
  bool IssetFilelength() const { return m_Filelength.is_set(); }
  void UnsetFilelength() { m_Filelength.unset(); }

  /// Format of the log: 1 binary file with an XML header. Attribute "C", required; one of "1".
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
  lmx::ct_simple_pod_single<std::string> m_Filename;
  lmx::ct_simple_pod_optional<unsigned int> m_Filelength;
  lmx::ct_simple_pod_single<std::string> m_Type;
};

/// A stretch of the children of `AllocationStamp`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerAllocationStamp {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    PositionChosen = 0,
    NothingChosen = 1,
  };

  InnerAllocationStamp();
  InnerAllocationStamp(InnerAllocationStamp const& other);
  /// Leaves `other` behind like a new object.
  InnerAllocationStamp(InnerAllocationStamp&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerAllocationStamp(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerAllocationStamp* clone() const;
  virtual ~InnerAllocationStamp();
  /// Deep; when copying fails the target is unchanged.
  InnerAllocationStamp& operator=(InnerAllocationStamp const& other);
  InnerAllocationStamp& operator=(InnerAllocationStamp&& other) noexcept;
  void swap(InnerAllocationStamp& other) noexcept;
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

  /// Makes `Position` the alternative held, with an empty run; no effect when it is already.
  void SelectPosition();
  /// The run of "PTN". The const forms stop the process on a bad index; the non-const `Get` and `Assign`
  /// add default objects until the index exists. Pointers given are owned from then on.
  Position const& GetPosition(std::size_t index) const;
  Position& GetPosition(std::size_t index);
  Position& AppendPosition();
  void AppendPosition(Position* value);
  Position& InsertPosition(std::size_t index);
  void InsertPosition(std::size_t index, Position* value);
  void AssignPosition(std::size_t index, Position const& value);
  void AssignPosition(std::size_t index, Position* value);
  Position& BackPosition();
  void DeletePosition(std::size_t index);
  void ClearPosition();
  std::size_t SizePosition() const;

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// AllocationStamp, element "ASP". Time, and where known the positions, at which an allocation begins and
/// ends.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API AllocationStamp {
 public:
  AllocationStamp();
  AllocationStamp(AllocationStamp const& other);
  /// Leaves `other` behind like a new object.
  AllocationStamp(AllocationStamp&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  AllocationStamp(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual AllocationStamp* clone() const;
  virtual ~AllocationStamp();
  /// Deep; when copying fails the target is unchanged.
  AllocationStamp& operator=(AllocationStamp const& other);
  AllocationStamp& operator=(AllocationStamp&& other) noexcept;
  void swap(AllocationStamp& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Date and time at which the allocation begins. Attribute "A", required.
  lmx::elmx_error SetStart(lmx::c_datetime const& value) { return m_Start.set(value); }
  lmx::c_datetime const& GetStart() const { return m_Start.get(); }
  bool IssetStart() const { return m_Start.is_set(); }
  void UnsetStart() { m_Start.unset(); }

  /// Date and time at which the allocation ends. Attribute "B", optional.
  lmx::elmx_error SetStop(lmx::c_datetime const& value) { return m_Stop.set(value); }
  lmx::c_datetime const& GetStop() const { return m_Stop.get(); }
  bool IssetStop() const { return m_Stop.is_set(); }
  void UnsetStop() { m_Stop.unset(); }

  /// Length of the allocation in seconds. Attribute "C", optional; 0 to 4294967294.
  lmx::elmx_error SetDuration(unsigned int const& value) { return m_Duration.set(value); }
  unsigned int const& GetDuration() const { return m_Duration.get(); }
  bool IssetDuration() const { return m_Duration.is_set(); }
  void UnsetDuration() { m_Duration.unset(); }

  /// Kind of the stamp: 1 planned, 4 effective. Attribute "D", required; one of "1", "4".
  lmx::elmx_error SetType(std::string const& value) { return m_Type.set(value); }
  std::string const& GetType() const { return m_Type.get(); }
  bool IssetType() const { return m_Type.is_set(); }
  void UnsetType() { m_Type.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumType() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumType(elmx_enums code);

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerAllocationStamp const& GetInnerAllocationStamp() const;
  InnerAllocationStamp& GetInnerAllocationStamp();
  void AssignInnerAllocationStamp(InnerAllocationStamp const& value);
  /// Takes ownership.
  void AssignInnerAllocationStamp(InnerAllocationStamp* value);
  bool IssetInnerAllocationStamp() const;
  void UnsetInnerAllocationStamp();

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
  lmx::ct_simple_pod_single<lmx::c_datetime> m_Start;
  lmx::ct_simple_pod_optional<lmx::c_datetime> m_Stop;
  lmx::ct_simple_pod_optional<unsigned int> m_Duration;
  lmx::ct_simple_pod_single<std::string> m_Type;
  lmx::ct_complex_optional<InnerAllocationStamp> mInnerAllocationStamp;
};

/// A stretch of the children of `CommentAllocation`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerCommentAllocation {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    NothingChosen = 1,
  };

  InnerCommentAllocation();
  InnerCommentAllocation(InnerCommentAllocation const& other);
  /// Leaves `other` behind like a new object.
  InnerCommentAllocation(InnerCommentAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerCommentAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerCommentAllocation* clone() const;
  virtual ~InnerCommentAllocation();
  /// Deep; when copying fails the target is unchanged.
  InnerCommentAllocation& operator=(InnerCommentAllocation const& other);
  InnerCommentAllocation& operator=(InnerCommentAllocation&& other) noexcept;
  void swap(InnerCommentAllocation& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// CommentAllocation, element "CAN". A comment made on a task, either coded or as free text.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API CommentAllocation {
 public:
  CommentAllocation();
  CommentAllocation(CommentAllocation const& other);
  /// Leaves `other` behind like a new object.
  CommentAllocation(CommentAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  CommentAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual CommentAllocation* clone() const;
  virtual ~CommentAllocation();
  /// Deep; when copying fails the target is unchanged.
  CommentAllocation& operator=(CommentAllocation const& other);
  CommentAllocation& operator=(CommentAllocation&& other) noexcept;
  void swap(CommentAllocation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Coded comment that was chosen. Attribute "A", optional; 4 to 14 characters, pattern (CCT|CCT-)([0-9])+.
  lmx::elmx_error SetCodedCommentIdRef(std::string const& value) { return m_CodedCommentIdRef.set(value); }
  std::string const& GetCodedCommentIdRef() const { return m_CodedCommentIdRef.get(); }
  bool IssetCodedCommentIdRef() const { return m_CodedCommentIdRef.is_set(); }
  void UnsetCodedCommentIdRef() { m_CodedCommentIdRef.unset(); }

  /// Value chosen from the coded comment's list. Attribute "B", optional; 4 to 14 characters, pattern
  /// (CCL|CCL-)([0-9])+.
  lmx::elmx_error SetCodedCommentListValueIdRef(std::string const& value) { return m_CodedCommentListValueIdRef.set(value); }
  std::string const& GetCodedCommentListValueIdRef() const { return m_CodedCommentListValueIdRef.get(); }
  bool IssetCodedCommentListValueIdRef() const { return m_CodedCommentListValueIdRef.is_set(); }
  void UnsetCodedCommentListValueIdRef() { m_CodedCommentListValueIdRef.unset(); }

  /// Free text of the comment, in place of a coded one. Attribute "C", optional; at most 32 characters.
  lmx::elmx_error SetFreeCommentText(std::string const& value) { return m_FreeCommentText.set(value); }
  std::string const& GetFreeCommentText() const { return m_FreeCommentText.get(); }
  bool IssetFreeCommentText() const { return m_FreeCommentText.is_set(); }
  void UnsetFreeCommentText() { m_FreeCommentText.unset(); }

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerCommentAllocation const& GetInnerCommentAllocation() const;
  InnerCommentAllocation& GetInnerCommentAllocation();
  void AssignInnerCommentAllocation(InnerCommentAllocation const& value);
  /// Takes ownership.
  void AssignInnerCommentAllocation(InnerCommentAllocation* value);
  bool IssetInnerCommentAllocation() const;
  void UnsetInnerCommentAllocation();

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
  lmx::ct_simple_pod_optional<std::string> m_CodedCommentIdRef;
  lmx::ct_simple_pod_optional<std::string> m_CodedCommentListValueIdRef;
  lmx::ct_simple_pod_optional<std::string> m_FreeCommentText;
  lmx::ct_complex_optional<InnerCommentAllocation> mInnerCommentAllocation;
};

/// A stretch of the children of `DeviceAllocation`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerDeviceAllocation {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    NothingChosen = 1,
  };

  InnerDeviceAllocation();
  InnerDeviceAllocation(InnerDeviceAllocation const& other);
  /// Leaves `other` behind like a new object.
  InnerDeviceAllocation(InnerDeviceAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerDeviceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerDeviceAllocation* clone() const;
  virtual ~InnerDeviceAllocation();
  /// Deep; when copying fails the target is unchanged.
  InnerDeviceAllocation& operator=(InnerDeviceAllocation const& other);
  InnerDeviceAllocation& operator=(InnerDeviceAllocation&& other) noexcept;
  void swap(InnerDeviceAllocation& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// DeviceAllocation, element "DAN". Assigns a device to a task, planned by a pattern of its NAME or recorded
/// as the device that was used.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API DeviceAllocation {
 public:
  DeviceAllocation();
  DeviceAllocation(DeviceAllocation const& other);
  /// Leaves `other` behind like a new object.
  DeviceAllocation(DeviceAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  DeviceAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual DeviceAllocation* clone() const;
  virtual ~DeviceAllocation();
  /// Deep; when copying fails the target is unchanged.
  DeviceAllocation& operator=(DeviceAllocation const& other);
  DeviceAllocation& operator=(DeviceAllocation&& other) noexcept;
  void swap(DeviceAllocation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// ISO 11783 NAME that the device has to match, eight bytes in hexadecimal. Attribute "A", required; 8
  /// bytes, written as hexadecimal.
  lmx::elmx_error SetClientNameValue(lmx::c_binary const& value) { return m_ClientNameValue.set(value); }
  lmx::c_binary const& GetClientNameValue() const { return m_ClientNameValue.get(); }
  bool IssetClientNameValue() const { return m_ClientNameValue.is_set(); }
  void UnsetClientNameValue() { m_ClientNameValue.unset(); }

  /// Mask of the NAME bits that are compared, eight bytes in hexadecimal. Attribute "B", optional; 8 bytes,
  /// written as hexadecimal.
  lmx::elmx_error SetClientNameMask(lmx::c_binary const& value) { return m_ClientNameMask.set(value); }
  lmx::c_binary const& GetClientNameMask() const { return m_ClientNameMask.get(); }
  bool IssetClientNameMask() const { return m_ClientNameMask.is_set(); }
  void UnsetClientNameMask() { m_ClientNameMask.unset(); }

  /// Device that is assigned. Attribute "C", optional; 4 to 14 characters, pattern (DVC|DVC-)([0-9])+.
  lmx::elmx_error SetDeviceIdRef(std::string const& value) { return m_DeviceIdRef.set(value); }
  std::string const& GetDeviceIdRef() const { return m_DeviceIdRef.get(); }
  bool IssetDeviceIdRef() const { return m_DeviceIdRef.is_set(); }
  void UnsetDeviceIdRef() { m_DeviceIdRef.unset(); }

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerDeviceAllocation const& GetInnerDeviceAllocation() const;
  InnerDeviceAllocation& GetInnerDeviceAllocation();
  void AssignInnerDeviceAllocation(InnerDeviceAllocation const& value);
  /// Takes ownership.
  void AssignInnerDeviceAllocation(InnerDeviceAllocation* value);
  bool IssetInnerDeviceAllocation() const;
  void UnsetInnerDeviceAllocation();

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
  lmx::ct_simple_pod_single<lmx::c_binary> m_ClientNameValue;
  lmx::ct_simple_pod_optional<lmx::c_binary> m_ClientNameMask;
  lmx::ct_simple_pod_optional<std::string> m_DeviceIdRef;
  lmx::ct_complex_optional<InnerDeviceAllocation> mInnerDeviceAllocation;
};

/// A stretch of the children of `WorkerAllocation`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerWorkerAllocation {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    NothingChosen = 1,
  };

  InnerWorkerAllocation();
  InnerWorkerAllocation(InnerWorkerAllocation const& other);
  /// Leaves `other` behind like a new object.
  InnerWorkerAllocation(InnerWorkerAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerWorkerAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerWorkerAllocation* clone() const;
  virtual ~InnerWorkerAllocation();
  /// Deep; when copying fails the target is unchanged.
  InnerWorkerAllocation& operator=(InnerWorkerAllocation const& other);
  InnerWorkerAllocation& operator=(InnerWorkerAllocation&& other) noexcept;
  void swap(InnerWorkerAllocation& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// WorkerAllocation, element "WAN". Assigns a worker to a task.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API WorkerAllocation {
 public:
  WorkerAllocation();
  WorkerAllocation(WorkerAllocation const& other);
  /// Leaves `other` behind like a new object.
  WorkerAllocation(WorkerAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  WorkerAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual WorkerAllocation* clone() const;
  virtual ~WorkerAllocation();
  /// Deep; when copying fails the target is unchanged.
  WorkerAllocation& operator=(WorkerAllocation const& other);
  WorkerAllocation& operator=(WorkerAllocation&& other) noexcept;
  void swap(WorkerAllocation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Worker who is assigned. Attribute "A", required; 4 to 14 characters, pattern (WKR|WKR-)([0-9])+.
  lmx::elmx_error SetWorkerIdRef(std::string const& value) { return m_WorkerIdRef.set(value); }
  std::string const& GetWorkerIdRef() const { return m_WorkerIdRef.get(); }
  bool IssetWorkerIdRef() const { return m_WorkerIdRef.is_set(); }
  void UnsetWorkerIdRef() { m_WorkerIdRef.unset(); }

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerWorkerAllocation const& GetInnerWorkerAllocation() const;
  InnerWorkerAllocation& GetInnerWorkerAllocation();
  void AssignInnerWorkerAllocation(InnerWorkerAllocation const& value);
  /// Takes ownership.
  void AssignInnerWorkerAllocation(InnerWorkerAllocation* value);
  bool IssetInnerWorkerAllocation() const;
  void UnsetInnerWorkerAllocation();

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
  lmx::ct_simple_pod_single<std::string> m_WorkerIdRef;
  lmx::ct_complex_optional<InnerWorkerAllocation> mInnerWorkerAllocation;
};

/// A stretch of the children of `ProductAllocation`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerProductAllocation {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    NothingChosen = 1,
  };

  InnerProductAllocation();
  InnerProductAllocation(InnerProductAllocation const& other);
  /// Leaves `other` behind like a new object.
  InnerProductAllocation(InnerProductAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerProductAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerProductAllocation* clone() const;
  virtual ~InnerProductAllocation();
  /// Deep; when copying fails the target is unchanged.
  InnerProductAllocation& operator=(InnerProductAllocation const& other);
  InnerProductAllocation& operator=(InnerProductAllocation&& other) noexcept;
  void swap(InnerProductAllocation& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// ProductAllocation, element "PAN". Assigns a product to a task, with its quantity and the device element
/// that holds or handles it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ProductAllocation {
 public:
  ProductAllocation();
  ProductAllocation(ProductAllocation const& other);
  /// Leaves `other` behind like a new object.
  ProductAllocation(ProductAllocation&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ProductAllocation(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ProductAllocation* clone() const;
  virtual ~ProductAllocation();
  /// Deep; when copying fails the target is unchanged.
  ProductAllocation& operator=(ProductAllocation const& other);
  ProductAllocation& operator=(ProductAllocation&& other) noexcept;
  void swap(ProductAllocation& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Product that is assigned. Attribute "A", required; 4 to 14 characters, pattern (PDT|PDT-)([0-9])+.
  lmx::elmx_error SetProductIdRef(std::string const& value) { return m_ProductIdRef.set(value); }
  std::string const& GetProductIdRef() const { return m_ProductIdRef.get(); }
  bool IssetProductIdRef() const { return m_ProductIdRef.is_set(); }
  void UnsetProductIdRef() { m_ProductIdRef.unset(); }

  /// DDI that sets the meaning and unit of the quantity, two bytes, four hexadecimal digits. Attribute "B",
  /// optional; 2 bytes, written as hexadecimal.
  lmx::elmx_error SetQuantityDDI(lmx::c_binary const& value) { return m_QuantityDDI.set(value); }
  lmx::c_binary const& GetQuantityDDI() const { return m_QuantityDDI.get(); }
  bool IssetQuantityDDI() const { return m_QuantityDDI.is_set(); }
  void UnsetQuantityDDI() { m_QuantityDDI.unset(); }

  /// Quantity of the product, in the unit of the quantity DDI. Attribute "C", optional; 0 to 2147483647.
  lmx::elmx_error SetQuantityValue(unsigned int const& value) { return m_QuantityValue.set(value); }
  unsigned int const& GetQuantityValue() const { return m_QuantityValue.get(); }
  bool IssetQuantityValue() const { return m_QuantityValue.is_set(); }
  void UnsetQuantityValue() { m_QuantityValue.unset(); }

  /// What happened to the product: 1 filling, 2 emptying, 3 remainder. Attribute "D", optional; one of "1",
  /// "2", "3".
  lmx::elmx_error SetTransferMode(std::string const& value) { return m_TransferMode.set(value); }
  std::string const& GetTransferMode() const { return m_TransferMode.get(); }
  bool IssetTransferMode() const { return m_TransferMode.is_set(); }
  void UnsetTransferMode() { m_TransferMode.unset(); }
  /// Its code; 0 when the text is none of the list.
  elmx_enums GetenumTransferMode() const;
  /// Stores the text of `code`. False, and no change, for a code of another list.
  bool SetenumTransferMode(elmx_enums code);

  /// Device element that holds or handles the product. Attribute "E", optional; 4 to 14 characters, pattern
  /// (DET|DET-)([0-9])+.
  lmx::elmx_error SetDeviceElementIdRef(std::string const& value) { return m_DeviceElementIdRef.set(value); }
  std::string const& GetDeviceElementIdRef() const { return m_DeviceElementIdRef.get(); }
  bool IssetDeviceElementIdRef() const { return m_DeviceElementIdRef.is_set(); }
  void UnsetDeviceElementIdRef() { m_DeviceElementIdRef.unset(); }

  /// Value presentation that scales the quantity for display. Attribute "F", optional; 4 to 14 characters,
  /// pattern (VPN|VPN-)([0-9])+.
  lmx::elmx_error SetValuePresentationIdRef(std::string const& value) { return m_ValuePresentationIdRef.set(value); }
  std::string const& GetValuePresentationIdRef() const { return m_ValuePresentationIdRef.get(); }
  bool IssetValuePresentationIdRef() const { return m_ValuePresentationIdRef.is_set(); }
  void UnsetValuePresentationIdRef() { m_ValuePresentationIdRef.unset(); }

  /// Product that states the assigned product more closely. Attribute "G", optional; 4 to 14 characters,
  /// pattern (PDT|PDT-)([0-9])+.
  lmx::elmx_error SetProductSubTypeIdRef(std::string const& value) { return m_ProductSubTypeIdRef.set(value); }
  std::string const& GetProductSubTypeIdRef() const { return m_ProductSubTypeIdRef.get(); }
  bool IssetProductSubTypeIdRef() const { return m_ProductSubTypeIdRef.is_set(); }
  void UnsetProductSubTypeIdRef() { m_ProductSubTypeIdRef.unset(); }

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerProductAllocation const& GetInnerProductAllocation() const;
  InnerProductAllocation& GetInnerProductAllocation();
  void AssignInnerProductAllocation(InnerProductAllocation const& value);
  /// Takes ownership.
  void AssignInnerProductAllocation(InnerProductAllocation* value);
  bool IssetInnerProductAllocation() const;
  void UnsetInnerProductAllocation();

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
  lmx::ct_simple_pod_single<std::string> m_ProductIdRef;
  lmx::ct_simple_pod_optional<lmx::c_binary> m_QuantityDDI;
  lmx::ct_simple_pod_optional<unsigned int> m_QuantityValue;
  lmx::ct_simple_pod_optional<std::string> m_TransferMode;
  lmx::ct_simple_pod_optional<std::string> m_DeviceElementIdRef;
  lmx::ct_simple_pod_optional<std::string> m_ValuePresentationIdRef;
  lmx::ct_simple_pod_optional<std::string> m_ProductSubTypeIdRef;
  lmx::ct_complex_optional<InnerProductAllocation> mInnerProductAllocation;
};

/// A stretch of the children of `ControlAssignment`: one unbroken run of like siblings, or one child, as
/// `chosen` tells. It has no XML element of its own.
class ISOXML_API InnerControlAssignment {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AllocationStampChosen = 0,
    NothingChosen = 1,
  };

  InnerControlAssignment();
  InnerControlAssignment(InnerControlAssignment const& other);
  /// Leaves `other` behind like a new object.
  InnerControlAssignment(InnerControlAssignment&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  InnerControlAssignment(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual InnerControlAssignment* clone() const;
  virtual ~InnerControlAssignment();
  /// Deep; when copying fails the target is unchanged.
  InnerControlAssignment& operator=(InnerControlAssignment const& other);
  InnerControlAssignment& operator=(InnerControlAssignment&& other) noexcept;
  void swap(InnerControlAssignment& other) noexcept;
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

  /// Makes `AllocationStamp` the alternative held, with no object yet; no effect when it is already.
  void SelectAllocationStamp();
  /// The "ASP". The const form stops the process unless it is chosen and there; the
  /// other selects and creates it.
  AllocationStamp const& GetAllocationStamp() const;
  AllocationStamp& GetAllocationStamp();

  std::int32_t chosen;

  static lmx::s_event_map const elem_event_map[];

 private:
  lmx::ct_choice m_held;
};

/// ControlAssignment, element "CAT". Connects one device that supplies control values with another that uses
/// them, for one DDI.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API ControlAssignment {
 public:
  ControlAssignment();
  ControlAssignment(ControlAssignment const& other);
  /// Leaves `other` behind like a new object.
  ControlAssignment(ControlAssignment&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  ControlAssignment(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual ControlAssignment* clone() const;
  virtual ~ControlAssignment();
  /// Deep; when copying fails the target is unchanged.
  ControlAssignment& operator=(ControlAssignment const& other);
  ControlAssignment& operator=(ControlAssignment&& other) noexcept;
  void swap(ControlAssignment& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// ISO 11783 NAME of the device that supplies the values, eight bytes in hexadecimal. Attribute "A",
  /// required; 8 bytes, written as hexadecimal.
  lmx::elmx_error SetSourceClientName(lmx::c_binary const& value) { return m_SourceClientName.set(value); }
  lmx::c_binary const& GetSourceClientName() const { return m_SourceClientName.get(); }
  bool IssetSourceClientName() const { return m_SourceClientName.is_set(); }
  void UnsetSourceClientName() { m_SourceClientName.unset(); }

  /// ISO 11783 NAME of the device that uses the values, eight bytes in hexadecimal. Attribute "B", required;
  /// 8 bytes, written as hexadecimal.
  lmx::elmx_error SetUserClientName(lmx::c_binary const& value) { return m_UserClientName.set(value); }
  lmx::c_binary const& GetUserClientName() const { return m_UserClientName.get(); }
  bool IssetUserClientName() const { return m_UserClientName.is_set(); }
  void UnsetUserClientName() { m_UserClientName.unset(); }

  /// Structure label of the supplying device, bytes in hexadecimal. Attribute "C", required; 7 to 39 bytes,
  /// written as hexadecimal, pattern
  /// ((([0-9]|[a-e]|[A-E])([0-9]|[a-f]|[A-F]))|((F|f)([0-9]|[a-e]|[A-E]))){7}(([0-9]|[a-f]|[A-F])([0-9]|[a-f]|[A-F]))*.
  lmx::elmx_error SetSourceDeviceStructureLabel(lmx::c_binary const& value) { return m_SourceDeviceStructureLabel.set(value); }
  lmx::c_binary const& GetSourceDeviceStructureLabel() const { return m_SourceDeviceStructureLabel.get(); }
  bool IssetSourceDeviceStructureLabel() const { return m_SourceDeviceStructureLabel.is_set(); }
  void UnsetSourceDeviceStructureLabel() { m_SourceDeviceStructureLabel.unset(); }

  /// Structure label of the using device, bytes in hexadecimal. Attribute "D", required; 7 to 39 bytes,
  /// written as hexadecimal, pattern
  /// ((([0-9]|[A-E]|[a-e])([0-9]|[A-F]|[a-f]))|((F|f)([0-9]|[A-E]|[a-e]))){7}(([0-9]|[A-F]|[a-f])([0-9]|[A-F]|[a-f]))*.
  lmx::elmx_error SetUserDeviceStructureLabel(lmx::c_binary const& value) { return m_UserDeviceStructureLabel.set(value); }
  lmx::c_binary const& GetUserDeviceStructureLabel() const { return m_UserDeviceStructureLabel.get(); }
  bool IssetUserDeviceStructureLabel() const { return m_UserDeviceStructureLabel.is_set(); }
  void UnsetUserDeviceStructureLabel() { m_UserDeviceStructureLabel.unset(); }

  /// Number of the device element that supplies the values. Attribute "E", required; 0 to 4095.
  lmx::elmx_error SetSourceDeviceElementNumber(unsigned short const& value) { return m_SourceDeviceElementNumber.set(value); }
  unsigned short const& GetSourceDeviceElementNumber() const { return m_SourceDeviceElementNumber.get(); }
  bool IssetSourceDeviceElementNumber() const { return m_SourceDeviceElementNumber.is_set(); }
  void UnsetSourceDeviceElementNumber() { m_SourceDeviceElementNumber.unset(); }

  /// Number of the device element that uses the values. Attribute "F", required; 0 to 4095.
  lmx::elmx_error SetUserDevieceElementNumber(unsigned short const& value) { return m_UserDevieceElementNumber.set(value); }
  unsigned short const& GetUserDevieceElementNumber() const { return m_UserDevieceElementNumber.get(); }
  bool IssetUserDevieceElementNumber() const { return m_UserDevieceElementNumber.is_set(); }
  void UnsetUserDevieceElementNumber() { m_UserDevieceElementNumber.unset(); }

  /// DDI of the control values, two bytes, four hexadecimal digits. Attribute "G", required; 2 bytes, written
  /// as hexadecimal.
  lmx::elmx_error SetProcessDataDDI(lmx::c_binary const& value) { return m_ProcessDataDDI.set(value); }
  lmx::c_binary const& GetProcessDataDDI() const { return m_ProcessDataDDI.get(); }
  bool IssetProcessDataDDI() const { return m_ProcessDataDDI.is_set(); }
  void UnsetProcessDataDDI() { m_ProcessDataDDI.unset(); }

  /// The children, when there are any. The const form stops the process when there are none; the
  /// other creates the wrapper.
  InnerControlAssignment const& GetInnerControlAssignment() const;
  InnerControlAssignment& GetInnerControlAssignment();
  void AssignInnerControlAssignment(InnerControlAssignment const& value);
  /// Takes ownership.
  void AssignInnerControlAssignment(InnerControlAssignment* value);
  bool IssetInnerControlAssignment() const;
  void UnsetInnerControlAssignment();

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
  lmx::ct_simple_pod_single<lmx::c_binary> m_SourceClientName;
  lmx::ct_simple_pod_single<lmx::c_binary> m_UserClientName;
  lmx::ct_simple_pod_single<lmx::c_binary> m_SourceDeviceStructureLabel;
  lmx::ct_simple_pod_single<lmx::c_binary> m_UserDeviceStructureLabel;
  lmx::ct_simple_pod_single<unsigned short> m_SourceDeviceElementNumber;
  lmx::ct_simple_pod_single<unsigned short> m_UserDevieceElementNumber;
  lmx::ct_simple_pod_single<lmx::c_binary> m_ProcessDataDDI;
  lmx::ct_complex_optional<InnerControlAssignment> mInnerControlAssignment;
};

/// Connection, element "CNN". States which connectors of two devices are joined for a task.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API Connection {
 public:
  Connection();
  Connection(Connection const& other);
  /// Leaves `other` behind like a new object.
  Connection(Connection&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  Connection(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual Connection* clone() const;
  virtual ~Connection();
  /// Deep; when copying fails the target is unchanged.
  Connection& operator=(Connection const& other);
  Connection& operator=(Connection&& other) noexcept;
  void swap(Connection& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// First device of the connection. Attribute "A", required; 4 to 14 characters, pattern (DVC|DVC-)([0-9])+.
  lmx::elmx_error SetDeviceIdRef_0(std::string const& value) { return m_DeviceIdRef_0.set(value); }
  std::string const& GetDeviceIdRef_0() const { return m_DeviceIdRef_0.get(); }
  bool IssetDeviceIdRef_0() const { return m_DeviceIdRef_0.is_set(); }
  void UnsetDeviceIdRef_0() { m_DeviceIdRef_0.unset(); }

  /// Device element of the first device at which it is joined. Attribute "B", required; 4 to 14 characters,
  /// pattern (DET|DET-)([0-9])+.
  lmx::elmx_error SetDeviceElementIdRef_0(std::string const& value) { return m_DeviceElementIdRef_0.set(value); }
  std::string const& GetDeviceElementIdRef_0() const { return m_DeviceElementIdRef_0.get(); }
  bool IssetDeviceElementIdRef_0() const { return m_DeviceElementIdRef_0.is_set(); }
  void UnsetDeviceElementIdRef_0() { m_DeviceElementIdRef_0.unset(); }

  /// Second device of the connection. Attribute "C", required; 4 to 14 characters, pattern
  /// (DVC|DVC-)([0-9])+.
  lmx::elmx_error SetDeviceIdRef_1(std::string const& value) { return m_DeviceIdRef_1.set(value); }
  std::string const& GetDeviceIdRef_1() const { return m_DeviceIdRef_1.get(); }
  bool IssetDeviceIdRef_1() const { return m_DeviceIdRef_1.is_set(); }
  void UnsetDeviceIdRef_1() { m_DeviceIdRef_1.unset(); }

  /// Device element of the second device at which it is joined. Attribute "D", required; 4 to 14 characters,
  /// pattern (DET|DET-)([0-9])+.
  lmx::elmx_error SetDeviceElementIdRef_1(std::string const& value) { return m_DeviceElementIdRef_1.set(value); }
  std::string const& GetDeviceElementIdRef_1() const { return m_DeviceElementIdRef_1.get(); }
  bool IssetDeviceElementIdRef_1() const { return m_DeviceElementIdRef_1.is_set(); }
  void UnsetDeviceElementIdRef_1() { m_DeviceElementIdRef_1.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_DeviceIdRef_0;
  lmx::ct_simple_pod_single<std::string> m_DeviceElementIdRef_0;
  lmx::ct_simple_pod_single<std::string> m_DeviceIdRef_1;
  lmx::ct_simple_pod_single<std::string> m_DeviceElementIdRef_1;
};

/// OperTechPractice, element "OTP". States the cultural practice of a task and the technique used for it.
/// Setters store and do not validate; reading does. A getter of a value that is not set gives the default.
class ISOXML_API OperTechPractice {
 public:
  OperTechPractice();
  OperTechPractice(OperTechPractice const& other);
  /// Leaves `other` behind like a new object.
  OperTechPractice(OperTechPractice&& other) noexcept;
  /// Reads itself from `reader`; `*error` is the result.
  OperTechPractice(lmx::xmlReader& reader, lmx::elmx_error* error);
  /// A copy that the caller owns.
  virtual OperTechPractice* clone() const;
  virtual ~OperTechPractice();
  /// Deep; when copying fails the target is unchanged.
  OperTechPractice& operator=(OperTechPractice const& other);
  OperTechPractice& operator=(OperTechPractice&& other) noexcept;
  void swap(OperTechPractice& other) noexcept;
  /// Back to the state of a new object.
  void reset();
  void init();

  /// Cultural practice of the task. Attribute "A", required; 4 to 14 characters, pattern (CPC|CPC-)([0-9])+.
  lmx::elmx_error SetCulturalPracticeIdRef(std::string const& value) { return m_CulturalPracticeIdRef.set(value); }
  std::string const& GetCulturalPracticeIdRef() const { return m_CulturalPracticeIdRef.get(); }
  bool IssetCulturalPracticeIdRef() const { return m_CulturalPracticeIdRef.is_set(); }
  void UnsetCulturalPracticeIdRef() { m_CulturalPracticeIdRef.unset(); }

  /// Operation technique by which the practice is carried out. Attribute "B", optional; 4 to 14 characters,
  /// pattern (OTQ|OTQ-)([0-9])+.
  lmx::elmx_error SetOperationTechniqueIdRef(std::string const& value) { return m_OperationTechniqueIdRef.set(value); }
  std::string const& GetOperationTechniqueIdRef() const { return m_OperationTechniqueIdRef.get(); }
  bool IssetOperationTechniqueIdRef() const { return m_OperationTechniqueIdRef.is_set(); }
  void UnsetOperationTechniqueIdRef() { m_OperationTechniqueIdRef.unset(); }

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
  lmx::ct_simple_pod_single<std::string> m_CulturalPracticeIdRef;
  lmx::ct_simple_pod_optional<std::string> m_OperationTechniqueIdRef;
};
