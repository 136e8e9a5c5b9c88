// The data of the modules in a drawing: the display switches of walls, the drawing scale, and a
// word of flags. It is saved with the drawing as extended data of the model space block under its
// own application name, so that hosts without the modules preserve it. Opened with GetDwgGlobal;
// close deletes the object:
//
//   if (TDbConfig* config = GetDwgGlobal(AcDb::kForRead, QvxGeLib::g_pCurrentDb)) {
//     ... config->SolidFill() ...
//     config->close();
//   }
//
// A drawing without this data has the defaults below; the first change writes them.
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
  enum Flag {
    kPreviewOff = 0x200,    // no selection preview in this drawing
    kModelNumbers = 0x400,  // openings show their model numbers
  };

  int SolidFill() const { return m_values.solidFill; }
  int BoldLine() const { return m_values.boldLine; }
  int WallBase() const { return m_values.wallBase; }
  double PScale() const { return m_values.pscale; }
  int Flags() const { return m_values.flags; }

  // Ignored unless opened for writing.
  void SetSolidFill(int on) { Change(&TDbConfigValues::solidFill, on); }
  void SetBoldLine(int on) { Change(&TDbConfigValues::boldLine, on); }
  void SetWallBase(int on) { Change(&TDbConfigValues::wallBase, on); }
  void SetPScale(double scale) {  // ignored unless finite
    if (std::isfinite(scale)) Change(&TDbConfigValues::pscale, scale);
  }
  void SetFlags(int flags) { Change(&TDbConfigValues::flags, flags); }

  // Writes changes to the drawing and deletes the object.
  Acad::ErrorStatus close();

  static int OpenCount();  // number of open objects, for tests

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

  AcDbObject& m_holder;  // open as long as this object
  bool m_forWrite, m_changed = false;
  TDbConfigValues m_values;
};

// Null without a drawing, and for writing also while it may not be written.
QVX_KERNEL TDbConfig* GetDwgGlobal(AcDb::OpenMode mode, AcDbDatabase* database);
