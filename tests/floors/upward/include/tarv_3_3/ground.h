#pragma once
#include "platform/below.h"
