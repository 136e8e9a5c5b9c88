// Commands run from within another.
#pragma once

#include "adsdef.h"

// Pairs of type and value, RTNONE at the end: the command's name, then its input. RTSTR is a whole
// answer, "" is Enter; points are in user coordinates; RTPICKS and RTENAME answer a request to
// select objects. Returns when the command has ended; its changes belong to the undo step of the
// calling command. A request beyond the input is cancelled. RTERROR, without an effect, for an
// unknown command, a type that is not named here and a selection set that does not exist.
int acedCommandS(int type, ...);
