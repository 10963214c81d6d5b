// What the status of a task means.
#pragma once

#include <cstddef>
#include <string>

#include "isoxmllib/isoxmllib.h"

/// The attribute "G" of ISO 11783-10's element TSK in a word; "" for any other text.
inline std::string state_of(Task const& task) {
  constexpr char const* states[] = {"planned", "running", "paused", "completed", "template", "cancelled"};
  std::size_t code = 1;
  for (char const* const state : states) {
    if (task.GetStatus() == std::to_string(code++)) return state;
  }
  return std::string();
}
