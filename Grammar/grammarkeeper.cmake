# Table files: the words of the action language, readers and writers.
set(uv_keeper_sources
    UVGrammarKeeperRead.cpp
    UVGrammarKeeperText.cpp
    UVGrammarKeeperWrite.cpp
    UVGrammarKeeperWriteActions.cpp
    UVGrammarKeywords.cpp
    UVGrammarTableFile.cpp
)
set(uv_keeper_headers
    UVGrammarKeeper.h
    UVGrammarKeeperText.h
    UVGrammarKeywords.h
    UVGrammarTableFile.h
)
