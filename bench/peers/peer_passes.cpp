// The passes after the parse: icons and switches by an index of names, nesting, conditions.
#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "bench/peers/peer.h"

namespace peer {
namespace {

std::u16string Folded(std::u16string name) {
  for (char16_t& c : name)
    if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c + (u'a' - u'A'));
  return name;
}

using Index = std::unordered_map<std::u16string, int>;

template <class List>
Index IndexOf(const List& list) {
  Index index;
  index.reserve(list.size());
  for (size_t i = 0; i < list.size(); ++i) index.emplace(Folded(list[i].name), static_cast<int>(i));
  return index;
}

int Find(const Index& index, const std::u16string& name) {
  const auto found = index.find(Folded(name));
  return found == index.end() ? -1 : found->second;
}

void ResolveIcons(Menu& menu) {
  const Index icons = IndexOf(menu.resources);
  for (Bar& bar : menu.bars)
    for (Item& item : bar.items)
      if (!item.iconName.empty()) item.iconIndex = Find(icons, item.iconName);
  for (Switch& owner : menu.switches)
    for (State& state : owner.states) state.iconIndex = Find(icons, state.iconName);
}

bool Opens(const Item& item) { return item.label.compare(0, 2, u"->") == 0; }

int ClosedLevels(const Item& item) {
  int count = 0;
  while (item.label.compare(static_cast<size_t>(count) * 2, 2, u"<-") == 0) ++count;
  return count;
}

// The line that closes what `first` opens; 0 when there is none.
size_t FindLast(const std::vector<Item>& items, size_t first) {
  int depth = 0;
  for (size_t i = first; i < items.size(); ++i) {
    if (Opens(items[i])) {
      ++depth;
      continue;
    }
    const int closed = ClosedLevels(items[i]);
    if (closed > 0 && closed == depth) return i;
    depth -= closed;
  }
  return 0;
}

void Nest(Bar& bar) {
  std::vector<Item> kept;
  size_t i = 0;
  for (; i < bar.items.size(); ++i) {
    const size_t last = Opens(bar.items[i]) ? FindLast(bar.items, i) : 0;
    if (Opens(bar.items[i]) && last == 0) break;
    Item& item = kept.emplace_back(std::move(bar.items[i]));
    if (last == 0) continue;
    item.label.erase(0, 2);
    bar.items[last].label.erase(0, 2);
    item.subMenu = std::make_unique<Bar>();
    for (size_t inner = i + 1; inner <= last; ++inner)
      item.subMenu->items.push_back(std::move(bar.items[inner]));
    Nest(*item.subMenu);
    i = last;
  }
  for (; i < bar.items.size(); ++i) kept.push_back(std::move(bar.items[i]));
  bar.items = std::move(kept);
}

void ResolveSwitches(Bar& bar, const Index& switches) {
  for (Item& item : bar.items) {
    if (item.subMenu) {
      ResolveSwitches(*item.subMenu, switches);
    } else if (item.label.size() == 8 && Folded(item.label) == u"*switch*") {
      item.switchIndex = Find(switches, item.iconName);
    }
  }
}

std::u16string Trimmed(const std::u16string& text) {
  const size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string FirstWord(const std::u16string& text) {
  const std::u16string trimmed = Trimmed(text);
  return trimmed.substr(0, trimmed.find(u' '));
}

void TakeCondition(Item& item, const std::u16string& condition) {
  const size_t equal = condition.find(u'=');
  if (equal == std::u16string::npos) return;
  const std::u16string word = FirstWord(condition.substr(0, equal));
  std::u16string name = FirstWord(condition.substr(equal + 1));
  if (word == u"~") {
    item.flags |= 2;
    item.grayFn = std::move(name);
  } else if (word == u"!") {
    item.flags |= 1;
    item.checkFn = std::move(name);
  }
}

void StripLabel(Item& item) {
  const auto needsTrim = [](const std::u16string& label) {
    return label.front() == u' ' || label.back() == u' ';
  };
  if (needsTrim(item.label)) item.label = Trimmed(item.label);
  while (!item.label.empty() && item.label.front() == u'{') {
    const size_t close = item.label.find(u'}');
    if (close == std::u16string::npos) break;
    TakeCondition(item, item.label.substr(1, close - 1));
    item.label = Trimmed(item.label.substr(close + 1));
  }
}

void StripConditions(Bar& bar) {
  for (Item& item : bar.items) {
    if (item.subMenu) {
      StripConditions(*item.subMenu);
    } else if (item.switchIndex < 0 && item.label.size() > 2) {
      StripLabel(item);
    }
  }
}

}  // namespace

void RunPasses(Menu& menu) {
  ResolveIcons(menu);
  for (Bar& bar : menu.bars) Nest(bar);
  const Index switches = IndexOf(menu.switches);
  for (Bar& bar : menu.bars) ResolveSwitches(bar, switches);
  for (Bar& bar : menu.bars) StripConditions(bar);
}

}  // namespace peer
