set(uv_string_tests
    RawStringTest.cpp
    U8StringTest.cpp
    UVEStringTest.cpp
    UnicodeDataTest.cpp
    UnicodeStringEditTest.cpp
    UnicodeStringTest.cpp
    UnicodeTest.cpp)

# The character database that the tables were generated from, and its test of normalisation.
set(uv_normalization_test ${CMAKE_CURRENT_BINARY_DIR}/NormalizationTest.txt)
execute_process(
    COMMAND ${Python3_EXECUTABLE} -c
            "import bz2, sys; open(sys.argv[2], 'wb').write(bz2.open(sys.argv[1]).read())"
            ${UV_UNICODE_DATA_DIR}/NormalizationTest.txt.bz2 ${uv_normalization_test}
    COMMAND_ERROR_IS_FATAL ANY)
set_source_files_properties(
    UnicodeDataTest.cpp PROPERTIES COMPILE_DEFINITIONS
    "UV_UNICODE_DATA_DIR=\"${UV_UNICODE_DATA_DIR}\";UV_NORMALIZATION_TEST=\"${uv_normalization_test}\"")
