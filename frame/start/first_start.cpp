#include "frame/start/first_start.h"

#include "frame/start/host_release.h"
#include "ground/product_registry.h"
#include "ground/support_files.h"
#include "ground/text_lines.h"
#include "kernel/globals.h"
#include "kernel/native_file.h"
#include "kernel/qvxexport.h"
#include "kernel/tsplitpath.h"
#include "rxregsvc.h"

bool HasStartedBefore(double release) {
  TRegProperty flags = qvx::MachineKey(L"InitFlag");
  const wchar_t* names[2];
  const int count = FirstStartValueNames(release, names);
  int started = 0;
  for (int i = 0; i < count; ++i) {
    flags.GetValue(names[i], started);  // the second value decides if it exists
    flags.SetValue(names[i], 1);
  }
  return started != 0;
}

void ReadFirstStartModules(const wchar_t* listPath, TWCStringList& names) {
  std::string bytes;
  if (!ReadWholeFile(listPath, bytes)) return;
  const TUString text(bytes.data(), static_cast<int>(bytes.size()));
  for (int at = 0; at < text.Length();) {
    const TWCString line = qvx::TakeLine(text, at);
    wchar_t name[QvxExport::kPathUnits];
    if (QvxExport::GetStringAtIndex(line, 1, name) && qvx::FindFile(name)) names.Add(name);
  }
}

void FindFirstStartModules(TWCStringList& names) {
  TWCString path;
  if (qvx::FindFile(L"dmload.rx", path)) ReadFirstStartModules(path, names);
}

void RunFirstStartModules() {
  if (HasStartedBefore(g_dHostVersion)) return;
  TWCStringList names;
  FindFirstStartModules(names);
  for (int i = 0; i < names.Length(); ++i)
    if (!QvxExport::IsArxAppLoaded(TSplitpathOperator(names[i]).FileName()))
      acrxLoadModule(names[i], true, true);
}
