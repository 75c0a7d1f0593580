// Where the library keeps proved tables between the runs of uvparse.
#pragma once

namespace uvparse {

// Names the folder by UVPARSER_CACHE in this process's environment: "uvparser" in the user's cache folder,
// unless the user's own environment names one, or says by an empty text that there is none. Call before the
// library is loaded. `isWanted` false: there is none in any case.
void ChooseTableCache(bool isWanted);

} // namespace uvparse
