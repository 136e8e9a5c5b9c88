// Writes a model as menu source. What cannot be written as tokens, or not at this place, is listed
// as a refusal. DifferencesOf finds whether the source means the same as the model.
#pragma once

#include <string>
#include <vector>

#include "tools/qmn/message.h"

class TMenuSystem;

struct Refusal {
  Message place;  // "block WALL, line 3"; lines numbered as in the source
  Message text;   // begins with the name of the field
};

class Refusals {
 public:
  static constexpr size_t kShown = 20;
  void Add(const Message& place, Message text) {
    if (m_shown.size() < kShown) m_shown.push_back({place, std::move(text)});
    ++m_count;
  }
  bool Any() const { return m_count > 0; }
  size_t Count() const { return m_count; }
  const std::vector<Refusal>& Shown() const { return m_shown; }

 private:
  std::vector<Refusal> m_shown;
  size_t m_count = 0;
};

// With LF line ends and no layout.
std::string WriteSource(TMenuSystem& system, unsigned page, Refusals& refusals);

// Lists where a compiled model differs from the wanted one, which has the same blocks and lines.
void DifferencesOf(TMenuSystem& wanted, TMenuSystem& made, Refusals& refusals);

// Place names, used by both functions above. Indexes count from 0.
Message PlaceOfBlock(const TMenuSystem& system, int block);
Message PlaceOfLine(const TMenuSystem& system, int block, int line);
Message PlaceOfSwitch(const TMenuSystem& system, int index);
Message PlaceOfState(const TMenuSystem& system, int index, int state);
Message PlaceOfResource(const TMenuSystem& system, int index);
