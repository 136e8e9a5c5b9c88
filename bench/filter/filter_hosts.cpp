#include "bench/filter/filter_hosts.h"

#include "acdocman.h"
#include "ground/command_line.h"
#include "ground/host_variables.h"
#include "kernel/current_drawing.h"
#include "kernel/drawing_data.h"
#include "kernel/globals.h"
#include "kernel/host_state.h"

bool CoreHost::HasCurrentDocument() {
  return acDocManagerPtr() && acDocManagerPtr()->curDocument() != nullptr;
}
bool CoreHost::HasWorkingDatabase() { return qvx::HasWorkingDatabase(); }
bool CoreHost::IsDrawingReady() {
  const TDocData* data = GetCurDocData();
  return data && data->m_bReady != 0;
}
bool CoreHost::RunsCommand(const wchar_t* part) {
  ++variables;
  return qvx::RunsCommand(part);
}
bool CoreHost::IsIdle() { return IsAcadIdle(); }
bool CoreHost::IsCommandLineEmpty() { return ::IsCommandLineEmpty(); }
int CoreHost::ShortVariable(const wchar_t* name) {
  ++variables;
  return qvx::ShortVariable(name).value_or(0);
}

OpenDrawing::OpenDrawing() {
  devhost::TheHost().Begin({}, &m_ui, nullptr);
  BeginCurrentDrawing();
  devhost::TheHost().documents.New();
  DocStatus();
}
OpenDrawing::~OpenDrawing() {
  EndCurrentDrawing();
  devhost::TheHost().End();
}
