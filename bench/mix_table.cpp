#include "bench/mix_table.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include "bench/bench_case.h"
#include "bench/menu_generator.h"

namespace {

double Share(double part, double whole) { return whole > 0 ? part / whole : 0; }

struct Row {
  const char* name;
  double (*value)(const MenuMix&);
};

const Row kRows[] = {
    {"bytes a line", [](const MenuMix& m) { return Share(double(m.bytes), m.lines); }},
    {"bytes a menu line", [](const MenuMix& m) { return Share(double(m.bytesOfItems), m.items); }},
    {"bytes a resource line",
     [](const MenuMix& m) { return Share(double(m.bytesOfResources), m.resources); }},
    {"menu lines, % of all", [](const MenuMix& m) { return 100 * Share(m.items, m.lines); }},
    {"resources, % of all", [](const MenuMix& m) { return 100 * Share(m.resources, m.lines); }},
    {"switches and states, % of all",
     [](const MenuMix& m) { return 100 * Share(m.switches + m.states, m.lines); }},
    {"comments and blank lines, % of all",
     [](const MenuMix& m) { return 100 * Share(m.comments + m.blank, m.lines); }},
    {"block heads, % of all", [](const MenuMix& m) { return 100 * Share(m.blocks, m.lines); }},
    {"blocks with a mask, % of blocks",
     [](const MenuMix& m) { return 100 * Share(m.masks, m.blocks); }},
    {"with an icon, % of menu lines",
     [](const MenuMix& m) { return 100 * Share(m.withIcon, m.items); }},
    {"separators, % of menu lines",
     [](const MenuMix& m) { return 100 * Share(m.separators, m.items); }},
    {"opening `->`, % of menu lines",
     [](const MenuMix& m) { return 100 * Share(m.opening, m.items); }},
    {"closing `<-`, % of menu lines",
     [](const MenuMix& m) { return 100 * Share(m.closing, m.items); }},
    {"switch lines, % of menu lines",
     [](const MenuMix& m) { return 100 * Share(m.switchLines, m.items); }},
    {"conditions, % of menu lines",
     [](const MenuMix& m) { return 100 * Share(m.conditions, m.items); }},
};

}  // namespace

void PrintMixTable(const std::string& productMenu) {
  std::ifstream file(productMenu, std::ios::binary);
  std::vector<MenuMix> mixes{MeasureMix({std::istreambuf_iterator<char>(file), {}})};
  std::printf("| | product menu |");
  for (const int lines : {2000, 20000, 200000, 1000000}) {
    mixes.push_back(MeasureMix(CaseOf(lines).source));
    std::printf(" %d lines |", lines);
  }
  std::printf("\n|---|---:|---:|---:|---:|---:|\n");
  for (const Row& row : kRows) {
    std::printf("| %s |", row.name);
    for (const MenuMix& mix : mixes) std::printf(" %.1f |", row.value(mix));
    std::printf("\n");
  }
  std::printf("| source, MB |");
  for (const MenuMix& mix : mixes) std::printf(" %.3f |", double(mix.bytes) / 1e6);
  std::printf("\n");
}
