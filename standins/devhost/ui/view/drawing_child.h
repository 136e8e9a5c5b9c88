// The MDI child window of one drawing. Contains the drawing view; reports activation and closing by
// the user to the core.
#pragma once

#include "afxwin.h"
#include "devhost/ui/view/drawing_view.h"

namespace devhost {

class Document;

class DrawingChild : public CMDIChildWnd {
 public:
  explicit DrawingChild(Document& document);

  bool CreateIn(CMDIFrameWnd* frame, const std::wstring& title);
  Document& GetDocument() { return m_document; }
  DrawingView& View() { return m_view; }
  bool IsActive() const;
  void Activate();          // activates the window
  void DestroyMdiWindow();  // destroys the window; the core has closed the drawing already

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  void PostNcDestroy() override {}  // owned by HostUiImpl

 private:
  Document& m_document;
  DrawingView m_view;
};

}  // namespace devhost
