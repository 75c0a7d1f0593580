#include "Tests/Support/EngineFixture.h"

#include <gtest/gtest.h>
