// The MDI child window of one drawing. It holds the drawing view and tells the host core when the
// user brings it to the front or closes it; the core decides what follows.
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
  void Activate();        // brings it to the front
  void DestroyForGood();  // the core has said goodbye to the drawing already

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  void PostNcDestroy() override {}  // owned by host_ui

 private:
  Document& m_document;
  DrawingView m_view;
};

}  // namespace devhost
