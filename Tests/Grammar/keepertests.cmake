# Table files and the tool that makes them. The tests of the tool run the program: their target depends on uvgrammar.
set(uv_keeper_tests
    GrammarKeeperTest.cpp
    GrammarKeeperWriteTest.cpp
    UvgrammarFormsTest.cpp
    UvgrammarTest.cpp
)
