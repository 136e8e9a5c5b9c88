// The handler of TShowBar.
#pragma once

void ShowBar();
