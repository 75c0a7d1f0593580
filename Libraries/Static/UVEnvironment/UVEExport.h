#pragma once

// Marks what the shared library offers to its hosts. The build hides every other symbol, so a class or
// function without this mark can't be reached from outside, whatever header declares it.
#define UVDB_EXPORT __attribute__((visibility("default")))
