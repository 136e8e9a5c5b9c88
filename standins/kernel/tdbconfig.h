// What one drawing remembers for the family of modules: the display switches of walls, the drawing
// scale, and a word of flags. It is saved with the drawing, as extended data of the model space
// block under an application name of its own, so that it goes through every host that keeps
// extended data. Opened with GetDwgGlobal, and closed again, which also gives the object back:
//
//   if (TDbConfig* config = GetDwgGlobal(AcDb::kForRead, QvxGeLib::g_pCurrentDb)) {
//     ... config->SolidFill() ...
//     config->close();
//   }
//
// A drawing that never held any has the defaults below; it is written at the first change.
#pragma once

#include <cmath>

#include "dbmain.h"
#include "kernel/kernel_export.h"

struct TDbConfigValues {
  static constexpr double kDefaultScale = 100;

  int solidFill = 1;  // walls and columns are filled
  int boldLine = 0;   // their outlines are bold
  int wallBase = 0;   // the base line of walls is shown
  double pscale = kDefaultScale;
  int flags = 0;
};

class QVX_KERNEL TDbConfig : public AcDbObject {
 public:
  ACRX_DECLARE_MEMBERS(TDbConfig);
  enum Flag { kPreviewOff = 0x200 };  // no selection preview in this drawing

  int SolidFill() const { return m_values.solidFill; }
  int BoldLine() const { return m_values.boldLine; }
  int WallBase() const { return m_values.wallBase; }
  double PScale() const { return m_values.pscale; }
  int Flags() const { return m_values.flags; }

  // Ignored unless it was opened for writing.
  void SetSolidFill(int on) { Change(&TDbConfigValues::solidFill, on); }
  void SetBoldLine(int on) { Change(&TDbConfigValues::boldLine, on); }
  void SetWallBase(int on) { Change(&TDbConfigValues::wallBase, on); }
  void SetPScale(double scale) {  // what is no finite number changes nothing
    if (std::isfinite(scale)) Change(&TDbConfigValues::pscale, scale);
  }
  void SetFlags(int flags) { Change(&TDbConfigValues::flags, flags); }

  // Writes what was changed into the drawing and deletes the object.
  Acad::ErrorStatus close();

  static int OpenCount();  // how many are open; a test sees with it that each was closed

 private:
  friend QVX_KERNEL TDbConfig* GetDwgGlobal(AcDb::OpenMode mode, AcDbDatabase* database);
  TDbConfig(AcDbObject& holder, bool forWrite);
  ~TDbConfig() override;

  template <class T>
  void Change(T TDbConfigValues::*value, T by) {
    if (!m_forWrite) return;
    m_values.*value = by;
    m_changed = true;
  }

  AcDbObject& m_holder;  // open while this is
  bool m_forWrite, m_changed = false;
  TDbConfigValues m_values;
};

// Null without a drawing, and for writing also while it may not be written.
QVX_KERNEL TDbConfig* GetDwgGlobal(AcDb::OpenMode mode, AcDbDatabase* database);
