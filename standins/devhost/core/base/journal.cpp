// The journal; see the header. Every line is flushed, so that a crashed program leaves
// a complete journal.
#include "devhost/core/base/journal.h"

#include <algorithm>

#include "devhost/core/base/start_trace.h"

namespace devhost {
namespace {

std::string LineOf(const JournalEntry& entry) {
  Json line;
  line["n"] = entry.number;
  line["ms"] = entry.milliseconds;
  line["event"] = entry.event;
  for (const auto& [name, value] : entry.fields.items()) line[name] = value;
  return JsonText(line) + "\n";
}

}  // namespace

void Journal::WriteTo(std::FILE* stream) {
  const std::lock_guard lock(m_mutex);
  m_stream = stream;
}

namespace {

// Adds an entry to the trace of a start. Entries of other threads come only from plays, not
// from a start.
void TraceStep(const char* event, const Json& fields) {
  if (!TheStartTrace().IsRunning()) return;
  std::string detail;
  for (const char* name : {"name", "function", "text", "file", "title"})
    if (detail.empty() && fields.contains(name) && fields[name].is_string())
      detail = fields[name].get<std::string>();
  std::erase(detail, '\n');
  if (fields.contains("phase")) detail += " " + fields["phase"].get<std::string>();
  TheStartTrace().Step(event, detail);
}

}  // namespace

void Journal::Record(const char* event, Json fields) {
  TraceStep(event, fields);
  const auto elapsed = std::chrono::steady_clock::now() - m_start;
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
  {
    const std::lock_guard lock(m_mutex);
    m_entries.push_back(
        {static_cast<int>(m_entries.size()) + 1, static_cast<int>(ms), event, std::move(fields)});
    if (m_stream) {
      const std::string line = LineOf(m_entries.back());
      std::fwrite(line.data(), 1, line.size(), m_stream);
      std::fflush(m_stream);
    }
  }
  m_changed.notify_all();
}

int Journal::Count() const {
  const std::lock_guard lock(m_mutex);
  return static_cast<int>(m_entries.size());
}

std::vector<JournalEntry> Journal::Since(int number) const {
  const std::lock_guard lock(m_mutex);
  const auto from = std::min(m_entries.size(), static_cast<std::size_t>(std::max(number, 0)));
  return {m_entries.begin() + static_cast<std::ptrdiff_t>(from), m_entries.end()};
}

bool Journal::WaitFor(int number, std::chrono::milliseconds limit,
                      const std::function<bool(const JournalEntry&)>& test) const {
  const auto end = std::chrono::steady_clock::now() + limit;
  std::size_t next = static_cast<std::size_t>(std::max(number, 0));
  std::unique_lock lock(m_mutex);
  for (;;) {
    for (; next < m_entries.size(); ++next)
      if (test(m_entries[next])) return true;
    if (m_changed.wait_until(lock, end) == std::cv_status::timeout && next >= m_entries.size())
      return false;
  }
}

Journal& TheJournal() {
  static Journal journal;
  return journal;
}

}  // namespace devhost
