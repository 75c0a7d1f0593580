# Names: what is valid where, and the texts around them.
uv_test(identifier_test
    SOURCES
        IdentifierCharactersTest.cpp
        IdentifierNamesTest.cpp
        IdentifierRegExpTest.cpp
        IdentifierTextsTest.cpp
        IdentifierWordsTest.cpp)
