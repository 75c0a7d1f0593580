#pragma once

// Numbers for metadata objects: 1, 2, 3 and on, through the whole process, whichever thread asks.
int UVDBGetNextObjectID();
