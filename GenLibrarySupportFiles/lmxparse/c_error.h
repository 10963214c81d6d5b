// Who keeps what was reported. Two records stand side by side: `c_error` counts what the character and tag
// level met, and its fatal count ends the input; `s_debug_error` keeps the last error that reached the
// binding level, which is what a host reads.
#pragma once

#include <exception>
#include <iosfwd>
#include <string>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxparse/error_codes.h"

namespace lmx {

class c_get_as_utf8;
class c_getter_error_binder;

/// Counts the reports of one reader's character and tag level. After the first fatal report everything
/// is dropped, so the first fatal error stays the last one recorded.
class ISOXML_API c_error {
 public:
  c_error() = default;
  c_error(c_error const&) = delete;
  c_error& operator=(c_error const&) = delete;

  /// Called for each report that is counted. Does nothing here: an extension point for hosts.
  /// `source` may be null; both texts are borrowed for the length of the call.
  virtual void report(elmx_error_type type, elmx_error code, char const* source, int line,
                      char const* message);
  virtual ~c_error();

  /// Records and counts a report, then calls `report`. Does nothing once a fatal one was counted.
  void error(elmx_error_type type, elmx_error code, char const* source, int line, char const* message);
  /// The same, with the source name and line of the bound getter; null and -1 when none is bound.
  void error(elmx_error_type type, elmx_error code, char const* message);

  /// The last report. False, and nothing stored, when the last code is 0 (nothing was reported).
  bool get_error_info(elmx_error_type* type, elmx_error* code, int* line) const;

  /// Makes the binder's getter the one that supplies source and line; returns the one before, or null.
  c_get_as_utf8 const* register_getter(c_getter_error_binder* binder);
  /// Restores the getter that was current before `binder` registered.
  void unregister_getter(c_getter_error_binder* binder);

  bool has_fatal() const { return m_fatal_count > 0; }
  unsigned fatal_count() const { return m_fatal_count; }
  unsigned error_count() const { return m_error_count; }
  unsigned warning_count() const { return m_warning_count; }
  unsigned note_count() const { return m_note_count; }
  elmx_error_type last_type() const { return m_last_type; }
  elmx_error last_code() const { return m_last_code; }
  int last_line() const { return m_last_line; }

  // What has been counted. Hosts read it; `error` keeps it.
  c_get_as_utf8 const* mp_getter = nullptr;  ///< Supplies source and line; borrowed, null when none is bound.
  unsigned m_fatal_count = 0;                ///< Fatal reports.
  unsigned m_error_count = 0;                ///< Errors, fatal ones among them.
  unsigned m_warning_count = 0;              ///< Warnings, notes among them.
  unsigned m_note_count = 0;                 ///< Notes.
  elmx_error_type m_last_type = EET_NONE;    ///< How severe the last report was.
  elmx_error m_last_code = ELMX_OK;          ///< Its code; 0 when there was none.
  int m_last_line = -1;                      ///< Its line, -1 when not known.
};

/// Binds a getter to a `c_error` for the binder's lifetime. Binders nest like scopes.
class ISOXML_API c_getter_error_binder {
 public:
  explicit c_getter_error_binder(c_error& error) : mr_error(error) {}
  c_getter_error_binder(c_getter_error_binder const&) = delete;
  c_getter_error_binder& operator=(c_getter_error_binder const&) = delete;
  /// Restores the previous getter. A binder that was never bound stops the process ("m_is_bound").
  ~c_getter_error_binder();

  /// Makes `getter` (borrowed until destruction) the source of name and line. No effect when bound.
  void bind(c_get_as_utf8 const* getter);

 private:
  friend class c_error;

 protected:
  bool m_is_bound = false;
  c_error& mr_error;
  c_get_as_utf8 const* mp_getter = nullptr;
  c_get_as_utf8 const* mp_previous = nullptr;
};

/// The last error captured at the binding level, with where it arose in the program and the document.
struct ISOXML_API s_debug_error {
  elmx_error m_code = ELMX_OK;
  std::string m_item;                      ///< The element or attribute concerned; "@A" is attribute A.
  char const* mp_code_file = "(not set)";  ///< Program file; constant text. Null is shown as it is here.
  int m_code_line = -1;                    ///< Program line.
  int m_xml_line = -1;                     ///< Document line, -1 when not known.

  void clear();
  /// `file` is kept by pointer and must be constant text or null.
  void set(elmx_error code, std::string const& item, char const* file, int line, int xml_line);

  /// Writes "Error: ", and unless the code is 0 "Item: ", "Program file: ", "Program line: " and, when
  /// known, "XML line: ", each on a line of its own. Numbers are plain digits under every locale.
  std::ostream& to_stream(std::ostream& stream) const;
  std::string to_string() const;
};

ISOXML_API std::ostream& operator<<(std::ostream& stream, s_debug_error const& error);

/// What the last failed `Check` found. A record that is stored, never thrown.
class ISOXML_API c_check_exception : public std::exception {
 public:
  c_check_exception() = default;
  c_check_exception(std::string path, char const* file, int line)
      : m_path(std::move(path)), mp_code_file(file), m_code_line(line) {}
  ~c_check_exception() override;

  /// "lmx check exception".
  char const* what() const noexcept override;

  /// The names of the enclosing levels and of what is missing, each after a "/".
  std::string const& get_path() const { return m_path; }
  char const* get_file() const { return mp_code_file; }
  int get_line() const { return m_code_line; }

 private:
  std::string m_path;
  char const* mp_code_file = "(not set)";
  int m_code_line = -1;
};

/// The last failed check of the process. Unguarded: hosts that check in several threads at once pass an
/// exception of their own to the root tracker instead.
extern ISOXML_API c_check_exception global_check_exception;

}  // namespace lmx
