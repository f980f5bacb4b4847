#pragma once
#  include "options/above.h" // points up
