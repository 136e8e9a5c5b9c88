// Implements UiPort. Only OnMainThread may be called from other threads.
#pragma once

#include "devhost/play/ui_port.h"
#include "devhost/ui/messages/main_thread.h"

namespace devhost {

class UiPortImpl : public UiPort {
 public:
  // Construct before the first drawing: calls block until the program waits for input.
  UiPortImpl();
  ~UiPortImpl() override;
  UiPortImpl(const UiPortImpl&) = delete;
  UiPortImpl& operator=(const UiPortImpl&) = delete;

  bool OnMainThread(const std::function<void()>& work) override;
  void RejectCalls();  // the program ends: calls return false from now on

  bool IsIdle() override;
  bool IsMenuOpen() override;
  bool IsPopupOpen() override;

  HWND Frame() override;
  HWND CommandLine() override;
  HWND ActiveView() override;

  bool WorldToScreen(double x, double y, POINT* out) override;
  bool ViewToScreen(int x, int y, POINT* out) override;
  bool EntityToScreen(const std::string& handle, POINT* out) override;
  bool ButtonToScreen(const std::wstring& label, POINT* out) override;
  std::string CharacterToScreen(int position, POINT* out) override;
  std::string PaneToScreen(const std::string& name, POINT* out) override;

  bool OpenDrawing(const std::wstring& path) override;
  void NewDrawing() override;
  bool ActivateDrawing(const std::wstring& name) override;
  void CloseDrawing() override;
  bool SelectEntities(const std::vector<std::string>& handles) override;
  bool SetVariable(const std::wstring& name, const std::wstring& value) override;
  bool GetVariable(const std::wstring& name, std::wstring* value) override;
  bool SetSetting(const std::wstring& name, const std::wstring& value) override;
  bool GetSetting(const std::wstring& name, std::wstring* value) override;
  std::vector<std::string> HighlightedHandles() override;
  bool DrawnTexts(const std::string& handle, std::vector<std::wstring>* texts) override;
  std::wstring TypedText() override;

  std::string DescribeShell() override;
  std::string DescribeMenus() override;
  std::string DescribeWindows() override;
  std::string DescribeDatabase() override;
  void Quit(int exitCode) override;

 private:
  MainThread m_thread;
  HANDLE m_ready;  // set when the main thread first waits for input, or calls are rejected
};

}  // namespace devhost
