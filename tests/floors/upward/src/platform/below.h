#pragma once
#include <memory_resource>
#  include "options/above.h" // points up
