// Proves that whatever was included before defines every element class, every wrapper and `Root`. It includes
// nothing of the library itself.
#pragma once

template <class... Types>
constexpr bool are_complete = ((sizeof(Types) != 0) && ...);

static_assert(
    are_complete<AllocationStamp, AttachedFile, BaseStation, CoddedCommentGroup, CodedComment,
                 CodedCommentListValue, ColourLegend, ColourRange, CommentAllocation, Connection,
                 ControlAssignment, CropType, CropVariety, CulturalPractice, DataLogTrigger, DataLogValue,
                 Device, DeviceAllocation, DeviceElement, DeviceObjectReference, DeviceProcessData,
                 DeviceProperty, DeviceValuePresentation, ExternalFileContent, ExternalFileReference, Farm,
                 Field, Grid, Grower, GuidanceAllocation, GuidanceGroup, GuidancePattern, GuidanceShift,
                 InnerAllocationStamp, InnerCodedComment, InnerColourLegend, InnerCommentAllocation,
                 InnerControlAssignment, InnerCropType, InnerCulturalPractice, InnerDevice,
                 InnerDeviceAllocation, InnerDeviceElement, InnerExternalFileContent, InnerField,
                 InnerGuidanceAllocation, InnerGuidanceGroup, InnerGuidancePattern, InnerGuidanceShift,
                 InnerLineString, InnerLinkGroup, InnerLinkList, InnerPolygon, InnerProcessDataVariable,
                 InnerProduct, InnerProductAllocation, InnerTask, InnerTaskData, InnerTime,
                 InnerTreatmentZone, InnerWorkerAllocation, LineString, Link, LinkGroup, LinkList,
                 OperTechPractice, OperationTechnique, OperationTechniqueReference, P917Comment, P917Metadata,
                 P917Question, P917Questions, Point, Polygon, Position, ProcessDataVariable, Product,
                 ProductAllocation, ProductGroup, ProductRelation, Root, Task, TaskControllerCapabilities,
                 TaskData, Time, TimeLog, TreatmentZone, ValuePresentation, Worker, WorkerAllocation>);
