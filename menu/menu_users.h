// What the shell provides to the menu engine: the menu system, the users of its blocks, files, and
// output. The engine itself uses no window and no host.
#pragma once

class TMenuSystem;
class TMenuBar;

// Shows message boxes.
class MenuBoxes {
 public:
  virtual ~MenuBoxes() = default;
  virtual void ShowMessage(const wchar_t* text) = 0;
};

// Prints to the host's command line.
class MenuPrinter {
 public:
  virtual ~MenuPrinter() = default;
  virtual void Print(const wchar_t* text) = 0;
};

// Files on the host's support path, and the settings that choose a menu.
class MenuFiles {
 public:
  static constexpr int kPathUnits = 260;
  virtual ~MenuFiles() = default;
  // Writes the full path to `out`, which has room for kPathUnits characters; false when not found.
  virtual bool FindFile(const wchar_t* name, wchar_t* out) = 0;
  // The `Menu` value of the current profile's folder, truncated to kPathUnits; false when there is
  // none.
  virtual bool ReadMenuSetting(wchar_t* out) = 0;
  virtual int MenuType() = 0;
  // The folder for temporary files, with a slash at the end.
  virtual void TempFolder(wchar_t* out) = 0;
};

// The users of the blocks of a newly loaded system.
class MenuUsers {
 public:
  virtual ~MenuUsers() = default;
  // Null while the context window does not exist.
  virtual TMenuSystem* CurrentSystem() = 0;
  // Moves the block SCREEN from the system to the screen menu.
  virtual void AttachScreenBar(TMenuSystem& system) = 0;
  // Stores the block that PrepareToolBar returns as the current tool bar menu.
  virtual void AttachToolBar(TMenuSystem& system) = 0;
};
