#pragma once

/// Everything a host needs. Start at `IParser.h`; write `namespace tarv = tarv_3_3;`.

#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/IOption.h"
#include "tarv_3_3/IParseResult.h"
#include "tarv_3_3/IParser.h"
#include "tarv_3_3/Value.h"
#include "tarv_3_3/status.h"
#include "tarv_3_3/variant.h"
