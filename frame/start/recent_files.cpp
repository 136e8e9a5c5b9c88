#include "frame/start/recent_files.h"

#include "acdocman.h"
#include "frame/settings/comma_list.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "popup/popup_door.h"

void ReopenRecentFiles() {
  TWCStringList files, found;
  AcApDocManager* documents = acDocManagerPtr();
  if (documents && documents->isApplicationContext()) SplitCommaList(g_sRecentFiles, files);
  for (int i = 0; i < files.Length(); ++i)
    if (qvx::FindFile(files[i])) found.Add(files[i]);
  g_sRecentFiles.Empty();
  ReopenDrawings(found);
}
