#include "Tests/Support/EngineFixture.h"
