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
/// document and any fragment are read alike.
class ISOXML_API Root {
 public:
  /// The alternatives' numbers; `chosen` is one of them.
  enum : std::int32_t {
    AttachedFileChosen = 0,
    TaskDataChosen = 1,
    P917MetadataChosen = 2,
    TaskControllerCapabilitiesChosen = 3,
    ExternalFileReferenceChosen = 4,
    ExternalFileContentChosen = 57,
    LinkListChosen = 58,
    LinkChosen = 59,
    LinkGroupChosen = 60,
    NothingChosen = 61,
  };

  Root();
  Root(Root const& other);
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
