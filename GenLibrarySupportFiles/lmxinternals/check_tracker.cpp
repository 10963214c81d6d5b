#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"

#include <string>
#include <vector>

#include "GenLibrarySupportFiles/lmxparse/c_error.h"

namespace lmx {

bool report_check_failure(c_check_tracker const* tracker, char const* file, int line) {
  std::vector<char const*> names;
  c_check_tracker const* root = tracker;
  for (c_check_tracker const* link = tracker; link != nullptr; link = link->mp_parent) {
    if (link->mp_name != nullptr) names.push_back(link->mp_name);
    root = link;
  }
  std::string path;
  for (auto name = names.rbegin(); name != names.rend(); ++name) path.append("/").append(*name);
  const c_check_exception failure(std::move(path), file, line);
  if (root != nullptr && root->mp_exception != nullptr) *root->mp_exception = failure;
  global_check_exception = failure;
  return false;
}

}  // namespace lmx
