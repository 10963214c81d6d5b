#include "host_classes.h"

#include <memory>
#include <string>

namespace lmx {
class xmlReader;
enum elmx_error : int;
struct plain_attribute;
struct c_untyped_validation_spec;
}  // namespace lmx

namespace {
int calls = 0;
}

// Each class has the library's name and the same mangled names for its operations, but a layout and a
// behaviour of its own: were the dynamic linker to prefer it, reading would run into these operations
// and the objects' sizes would not fit. The members stand in for a host's own data.
#define HOST_CLASS(Name)                                                                      \
  class Name {                                                                                \
   public:                                                                                    \
    Name();                                                                                   \
    Name(Name const&);                                                                        \
    Name& operator=(Name const&);                                                             \
    virtual Name* clone() const;                                                              \
    virtual ~Name();                                                                          \
    virtual std::string host_name() const;                                                    \
    int unmarshal(lmx::xmlReader&);                                                           \
    int unmarshal(lmx::xmlReader&, std::string const&);                                       \
    bool unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*);                             \
    bool unmarshal_body(lmx::xmlReader&, lmx::elmx_error*);                                   \
    bool has_required_attributes() const;                                                     \
    lmx::c_untyped_validation_spec const* accept_attribute(lmx::plain_attribute const&);      \
                                                                                              \
   protected:                                                                                 \
    std::string m_name = "the host's " #Name;                                                 \
    double m_ballast[64] = {};                                                                \
  };                                                                                          \
  Name::Name() { ++calls; }                                                                   \
  Name::Name(Name const& other) : m_name(other.m_name) { ++calls; }                           \
  Name& Name::operator=(Name const& other) {                                                  \
    ++calls;                                                                                  \
    m_name = other.m_name;                                                                    \
    return *this;                                                                             \
  }                                                                                           \
  Name* Name::clone() const { return new Name(*this); }                                       \
  Name::~Name() { ++calls; }                                                                  \
  std::string Name::host_name() const { return m_name; }                                      \
  int Name::unmarshal(lmx::xmlReader&) { return ++calls; }                                    \
  int Name::unmarshal(lmx::xmlReader&, std::string const&) { return ++calls; }                \
  bool Name::unmarshal_attributes(lmx::xmlReader&, lmx::elmx_error*) { return ++calls > 0; }  \
  bool Name::unmarshal_body(lmx::xmlReader&, lmx::elmx_error*) { return ++calls > 0; }        \
  bool Name::has_required_attributes() const { return ++calls > 0; }                          \
  lmx::c_untyped_validation_spec const* Name::accept_attribute(lmx::plain_attribute const&) { \
    ++calls;                                                                                  \
    return nullptr;                                                                           \
  }                                                                                           \
  static bool uses_own_##Name() {                                                             \
    const std::unique_ptr<Name> original(new Name);                                           \
    const std::unique_ptr<Name> copy(original->clone());                                      \
    return copy->host_name() == "the host's " #Name;                                          \
  }

HOST_CLASS(Point)
HOST_CLASS(Task)
HOST_CLASS(Grower)
HOST_CLASS(TaskData)
HOST_CLASS(AttachedFile)
HOST_CLASS(ExternalFileReference)
HOST_CLASS(ExternalFileContent)
HOST_CLASS(LinkList)
HOST_CLASS(LinkGroup)
HOST_CLASS(Link)
HOST_CLASS(InnerTaskData)
HOST_CLASS(InnerLinkGroup)
HOST_CLASS(Root)

bool host_uses_its_own_classes() {
  return uses_own_Point() && uses_own_Task() && uses_own_Grower() && uses_own_TaskData() &&
         uses_own_AttachedFile() && uses_own_ExternalFileReference() && uses_own_ExternalFileContent() &&
         uses_own_LinkList() && uses_own_LinkGroup() && uses_own_Link() && uses_own_InnerTaskData() &&
         uses_own_InnerLinkGroup() && uses_own_Root();
}

int calls_into_host_classes() { return calls; }
