#pragma once
#include <string>

#include "options/beside.h"
#include "platform/below.h"
#include "tarv_3_3/ground.h"
