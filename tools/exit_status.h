// What the program tells its caller by its exit status: one enumeration, one table of texts.
#pragma once

#include <string>

/// The exit status of every command. The numbers are stable: scripts compare them.
enum class ExitStatus : int {
  AllGood = 0,     ///< Every document of the set was read and shown; also for help and version.
  SomeFailed = 1,  ///< The main document was read, others were not; the rest is shown.
  WrongUsage = 2,  ///< The command line makes no sense; nothing was opened.
  NoResult = 3,    ///< The main document or the task is not there, or the output could not be written.
};

/// The table of exit statuses as the end of the help shows it.
std::string exit_status_help();
