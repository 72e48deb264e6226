// How a failing expectation shows the program's own values: in words. A test of the workbench or above that
// compares such values includes this.
#pragma once

#include "support/LanguagePrinters.h"
#include "support/PanePrinters.h"
#include "support/PlatformPrinters.h"
