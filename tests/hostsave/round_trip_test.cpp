// A drawing that is opened, saved and opened again is equal, for drawings that other programs
// wrote and for the product's plan. The former are stored beside the tree; their tests are skipped
// if they are missing.
#include <set>

#include "database_lines.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "drawing_folder.h"
#include "file_objects.h"

using namespace devhost;

namespace savetest {
namespace {

struct SourceDrawing {
  const char* name;
  const char* lost = "";  // why the groups of damaged objects are not compared
};
constexpr SourceDrawing kDrawings[] = {{"ASCII_R12.dxf"},
                                       {"Ceco.NET-Architecture-Tm-53.dxf"},
                                       {"R12_with_trash_beyond_EOF.dxf"},
                                       {"attribute.dxf"},
                                       {"blocks2.dxf"},
                                       {"dimensions.dxf"},
                                       {"dxf_unicode.dxf"},
                                       {"floorplan.dxf"},
                                       {"hatches_2018.dxf"},
                                       {"mtext_columns_2018.dxf"},
                                       {"multi_insert_with_attribs.dxf"},
                                       {"recover01.dxf", "groups outside of sections are skipped"},
                                       {"small_r13.dxf"},
                                       {"testModelPaperSpace.dxf"},
                                       {"text_in_viewports.dxf"},
                                       {"texts-in-block.dxf"},
                                       {"viewport_frozen_layers.dxf"},
                                       {"wipeout_door_2018.dxf"}};

void PrintTo(const SourceDrawing& drawing, std::ostream* out) { *out << drawing.name; }

fs::path PathOf(const std::string& name) {
  const fs::path tree(QVX_SOURCE_DIR);
  return name == "plan.dxf" ? tree / "product" / name : tree / ".." / "shared" / "dxf" / name;
}

std::string Saved(const fs::path& path, const AcDbDatabase& database) {
  std::wstring why;
  EXPECT_TRUE(WriteDrawing(path.wstring(), database, &why)) << Utf8(why);
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

// The values of a group without those that the writer sets itself or that say the same if they are
// missing.
std::vector<std::string> Compared(const FileObject& object, int code) {
  const auto at = object.groups.find(code);
  if (at == object.groups.end()) return {};
  if (object.name.starts_with("$ACADVER") || object.name.starts_with("$HANDSEED")) return {};
  std::vector<std::string> values = at->second;
  if (code == 62) std::erase(values, "256");  // by layer
  if (code == 67) std::erase(values, "0");    // in the model
  if (code == 2 || code == 3)
    for (std::string& value : values) value = SpaceName(value);
  return values;
}

// Objects that say nothing by themselves. An empty CLASSES section is not written.
bool IsFrame(const std::string& name) {
  return name.starts_with("ENDSEC") || name.starts_with("ENDTAB") || name == "SECTION CLASSES";
}

// The host sets the owners of entities and their parts to the objects that contain them. Some
// programs write others.
bool HasOwnerOfFile(const FileObject& object) {
  return object.section != "BLOCKS" && object.section != "ENTITIES";
}

// The groups of the objects of a file that a saved file does not have, one a line.
std::string LostGroups(const std::string& source, const std::string& saved) {
  std::map<std::string, FileObject> after;
  for (FileObject& object : ObjectsOf(saved)) {
    after.emplace(object.place, object);
    after.emplace(object.name, object);
  }
  std::string lost;
  for (const FileObject& object : ObjectsOf(source)) {
    const auto at = after.find(object.name);
    if (at == after.end()) {
      if (!IsFrame(object.name)) lost += object.name + ": the object\n";
      continue;
    }
    if (HasOwnerOfFile(object) && object.owner != at->second.owner && !object.owner.empty())
      lost += object.name + ": owner " + object.owner + " now " + at->second.owner + "\n";
    for (const auto& [code, values] : object.groups) {
      const auto before = Compared(object, code), now = Compared(at->second, code);
      if (before.empty() || before == now) continue;
      lost += object.name + ": " + std::to_string(code) + "=";
      for (const std::string& value : before) lost += value + " ";
      lost += "now ";
      for (const std::string& value : now) lost += value + " ";
      lost += "\n";
    }
  }
  return lost;
}

}  // namespace

class RoundTrip : public DrawingFolder, public ::testing::WithParamInterface<SourceDrawing> {
 protected:
  void SetUp() override {
    folder =
        fs::temp_directory_path() / ("qvx_hostsave_" + fs::path(GetParam().name).stem().string());
    fs::remove_all(folder);
    fs::create_directories(folder);
    TheHost();  // registers the classes
    source = PathOf(GetParam().name);
    if (!fs::exists(source)) GTEST_SKIP() << "the drawing is not at hand";
    EXPECT_TRUE(ReadDrawing(source.wstring(), first).readAnything);
  }
  fs::path source;
  AcDbDatabase first;
};

TEST_P(RoundTrip, ASavedDrawingReadsBackEqual) {
  AcDbDatabase second, third;
  Saved(folder / "second.dxf", first);
  EXPECT_EQ(ReadDrawing((folder / "second.dxf").wstring(), second).message, L"");
  const DatabaseText a = TextOf(first), b = TextOf(second);
  EXPECT_EQ(Difference(a.objects, b.objects), "");
  EXPECT_EQ(Missing(a.source, b.source), "");
  Saved(folder / "third.dxf", second);
  EXPECT_EQ(ReadDrawing((folder / "third.dxf").wstring(), third).message, L"");
  EXPECT_EQ(Difference(b.objects, TextOf(third).objects), "");
  EXPECT_EQ(Difference(b.source, TextOf(third).source), "");
}

TEST_P(RoundTrip, EveryGroupOfTheFileIsInTheSavedOne) {
  if (*GetParam().lost) GTEST_SKIP() << GetParam().lost;
  EXPECT_EQ(LostGroups(Bytes(source), Saved(folder / "a.dxf", first)), "");
}

TEST_P(RoundTrip, SavingAgainWritesTheSameBytes) {
  AcDbDatabase second;
  const std::string once = Saved(folder / "a.dxf", first);
  EXPECT_TRUE(Saved(folder / "b.dxf", first) == once) << "from the same database";
  ReadDrawing((folder / "a.dxf").wstring(), second);
  EXPECT_TRUE(Saved(folder / "c.dxf", second) == once) << "after opening";
}

TEST_P(RoundTrip, HandlesOfASavedDrawingAreUnique) {
  std::map<std::string, int> counts;
  for (const FileObject& object : ObjectsOf(Saved(folder / "a.dxf", first))) {
    const auto handle = object.groups.find(object.name.starts_with("DIMSTYLE") ? 105 : 5);
    if (handle != object.groups.end() && !object.name.starts_with("$"))
      ++counts[handle->second.front()];
  }
  for (const auto& [handle, count] : counts) EXPECT_EQ(count, 1) << handle;
}

INSTANTIATE_TEST_SUITE_P(Drawings, RoundTrip, ::testing::ValuesIn(kDrawings));
constexpr SourceDrawing kPlan[] = {{"plan.dxf"}};
INSTANTIATE_TEST_SUITE_P(Product, RoundTrip, ::testing::ValuesIn(kPlan));

TEST(RoundTripFolder, EveryDrawingOfTheFolderIsTested) {
  const fs::path drawings = PathOf("README.md").parent_path();
  if (!fs::exists(drawings)) GTEST_SKIP() << "the drawings are not at hand";
  std::set<std::string> tested{"bin_dxf_r2000.dxf"};  // binary: rejected with a message
  for (const SourceDrawing& drawing : kDrawings) tested.insert(drawing.name);
  for (const auto& entry : fs::directory_iterator(drawings))
    if (entry.path().extension() == ".dxf") {
      EXPECT_TRUE(tested.contains(entry.path().filename().string())) << entry.path();
    }
}

}  // namespace savetest
