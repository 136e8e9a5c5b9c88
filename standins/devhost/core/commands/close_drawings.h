// Closing by the user. A modified drawing (DBMOD) is asked about before any notification: Yes
// saves, No discards the changes, Cancel keeps the drawing. A save that fails, or a name that is
// cancelled, is Cancel. The published closeDocument never asks.
#pragma once

namespace devhost {

class Document;

// All return false after Cancel.
bool CloseAsUser(Document& document);
// One after another: those before the Cancel stay closed.
bool CloseAllAsUser();
// All questions come first, then all saves; no drawing is closed here.
bool MayQuit();

}  // namespace devhost
