#pragma once
#include "ground.h"
