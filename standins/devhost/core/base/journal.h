// The journal: every call between host and modules that has an effect a user can see, in order.
// Entries are kept in memory, where play scripts look for what they expect, and written as JSON
// lines (UTF-8) when a file is given. Any thread may call.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "devhost/core/base/json.h"
#include "devhost/core/base/utf8.h"

namespace devhost {

struct JournalEntry {
  int number;         // from 1
  int milliseconds;   // since the journal was made
  std::string event;  // "sent", "printed", "prompt", "command", "lisp", "var", "messagebox",
                      // "dialog", "shell", "help", "document", "module", "menugroup",
                      // "statustext"
  Json fields;        // an object; docs/play-scripts.md lists the fields of each event
};

class Journal {
 public:
  // Sets the stream: one line an entry, flushed. Null stops writing. Not owned.
  void WriteTo(std::FILE* stream);

  void Record(const char* event, Json fields);

  int Count() const;                                  // number of the latest entry; 0: none
  std::vector<JournalEntry> Since(int number) const;  // entries with a number above this one

  // Waits until an entry with a number above `number` passes the test. False after `limit`.
  bool WaitFor(int number, std::chrono::milliseconds limit,
               const std::function<bool(const JournalEntry&)>& test) const;

 private:
  mutable std::mutex m_mutex;
  mutable std::condition_variable m_changed;
  std::vector<JournalEntry> m_entries;
  std::FILE* m_stream = nullptr;
  std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

Journal& TheJournal();

}  // namespace devhost
