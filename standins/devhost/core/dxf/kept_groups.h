// Joins the groups that an object had in its file with those that its class writes now, so that a
// save changes nothing but what was changed: groups that the class does not know and the digits of
// numbers are preserved. All texts are groups as DxfOutFiler writes them. Used by the drawing
// reader and writer.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "devhost/core/drawing/database_body.h"

namespace devhost {

struct TextGroup {
  short code;
  std::string_view value;
  std::string_view lines;  // code and value with their line ends
};

std::vector<TextGroup> SplitGroups(std::string_view text);

// What a class writes for one entity.
struct ClassText {
  std::string shared;                   // from the subclass mark AcDbEntity, without lists
  std::string lists;                    // lists in braces: reactors and extension dictionary
  std::string_view own;                 // from the subclass mark of the class
  std::vector<std::string_view> parts;  // VERTEX and SEQEND, each from its group 0
  std::size_t hash = 0;                 // of all but the shared groups
};
ClassText SplitClassText(std::string_view text);

// Whether the class of polylines has a vertex for a VERTEX of a file. It has none for the control
// points of a curve and the face records of a mesh.
bool IsReadByClass(const KeptPart& vertex);

// Finds the part that the class writes for each part of a file, in order.
class PartMatch {
 public:
  explicit PartMatch(const std::vector<std::string_view>& written) : m_written(written) {}

  // The groups of the part after its type; null: none. Call with every part of the file in order.
  std::optional<std::string_view> Next(const KeptPart& part);
  // The same, but for a part that has none those of another part.
  std::string_view Model(const KeptPart& part);
  // The vertices after the last one of the file.
  std::vector<std::string_view> Rest() const;
  std::string_view SequenceEnd() const;

 private:
  const std::vector<std::string_view>& m_written;
  std::size_t m_at = 0;
};

// `kept` with the subclass marks of `now`, if it has none: a group follows the mark below which
// `now` has one of its code, any other group follows the first mark of a class.
std::string WithMarks(std::string_view kept, std::string_view now);

// `kept` with the groups that the class changed. `before` is what the class writes after reading
// `kept`. Groups with codes in neither `before` nor `now` are preserved.
std::string JoinGroups(std::string_view kept, std::string_view before, std::string_view now);

// The same for objects whose members are written as they are read: `before` is `kept`.
std::string JoinGroups(std::string_view kept, std::string_view now);

// Whether a later class or an embedded object begins, whose codes have other meanings.
bool BeginsForeignGroups(short code, std::string_view value);

}  // namespace devhost
