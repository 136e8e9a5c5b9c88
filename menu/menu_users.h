// What the menu engine is given by the shell: the one live system, those who use its blocks, and
// the ways to speak to the user. The engine itself knows no window and no host.
#pragma once

class TMenuSystem;
class TMenuBar;

// Message boxes. On Windows the shell shows real ones; a tool or a test collects the texts.
class MenuBoxes {
 public:
  virtual ~MenuBoxes() = default;
  virtual void ShowMessage(const wchar_t* text) = 0;
};

// The host's command line, in the words that adsout prints.
class MenuPrinter {
 public:
  virtual ~MenuPrinter() = default;
  virtual void Print(const wchar_t* text) = 0;
};

// Files along the host's support path, and the settings that choose a menu.
class MenuFiles {
 public:
  static constexpr int kPathUnits = 260;
  virtual ~MenuFiles() = default;
  // Full path in `out`, which has room for kPathUnits characters. False when not found.
  virtual bool FindFile(const wchar_t* name, wchar_t* out) = 0;
  // The `Menu` value of the current profile's folder, cut to the room; false when there is none.
  virtual bool ReadMenuSetting(wchar_t* out) = 0;
  virtual int MenuType() = 0;
  // Folder for temporary files, with its last slash.
  virtual void TempFolder(wchar_t* out) = 0;
};

// Who uses the blocks of a freshly loaded system.
class MenuUsers {
 public:
  virtual ~MenuUsers() = default;
  // Null while the context window does not exist.
  virtual TMenuSystem* CurrentSystem() = 0;
  // Takes the block SCREEN out of the system and makes it the root of the screen menu.
  virtual void AttachScreenBar(TMenuSystem& system) = 0;
  // Stores what PrepareToolBar gives, which stays in the system, as the current tool bar menu.
  virtual void AttachToolBar(TMenuSystem& system) = 0;
};
