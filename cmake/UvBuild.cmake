# Building blocks that every folder's CMakeLists.txt uses.

include(CheckLinkerFlag)
include(GoogleTest)

# A link of everything takes a seventh of the time with lld.
find_program(UV_LLD ld.lld)
if(UV_LLD)
    check_linker_flag(CXX -fuse-ld=lld UV_LINKS_WITH_LLD)
    if(UV_LINKS_WITH_LLD)
        add_link_options(-fuse-ld=lld)
    endif()
endif()

# Flags that all code of the project is compiled with.
add_library(uv_flags INTERFACE)
# A start pays for every pointer in the data and for every library that is linked: what nothing uses is left out of
# what ships.
target_compile_options(uv_flags INTERFACE "$<$<CONFIG:Release>:-ffunction-sections;-fdata-sections>")
target_link_options(uv_flags INTERFACE "$<$<CONFIG:Release>:LINKER:--gc-sections;LINKER:--as-needed>")
target_compile_options(uv_flags INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion
                       -Wold-style-cast $<$<BOOL:${UV_WERROR}>:-Werror>)
target_include_directories(uv_flags INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/Libraries/Static)
if(UV_SANITIZE)
    target_compile_options(uv_flags INTERFACE -fsanitize=${UV_SANITIZE} -fno-omit-frame-pointer
                           -fno-sanitize-recover=all)
    target_link_options(uv_flags INTERFACE -fsanitize=${UV_SANITIZE})
endif()
if(UV_FUZZ)
    # the fuzzer steers by the branches that the code under test takes
    target_compile_options(uv_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(UV_SANITIZE MATCHES "address")
    target_compile_definitions(uv_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()

# uv_subsystem(<target> SOURCES ... HEADERS ... LINKS ...)
# One folder's code as an object library. Objects, since a linker drops archive members whose only effect is a
# static initialiser. LINKS carries include paths and system libraries, never objects: see uv_finish_subsystems.
function(uv_subsystem target)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;LINKS" ${ARGN})
    add_library(${target} OBJECT ${arg_SOURCES})
    # one of the two include roots; a file set takes no root inside another
    set(root ${PROJECT_SOURCE_DIR})
    if(CMAKE_CURRENT_SOURCE_DIR MATCHES "/Libraries/Static/")
        set(root ${PROJECT_SOURCE_DIR}/Libraries/Static)
    endif()
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${root} FILES ${arg_HEADERS})
    set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
    target_link_libraries(${target} PUBLIC uv_flags uv_interfaces ${arg_LINKS})
    set_property(GLOBAL APPEND PROPERTY UV_SUBSYSTEMS ${target})
endfunction()

# uv_object_group(<target> <subsystem>...): an interface target that carries the objects of the subsystems.
function(uv_object_group target)
    add_library(${target} INTERFACE)
    foreach(subsystem IN LISTS ARGN)
        target_sources(${target} INTERFACE $<TARGET_OBJECTS:${subsystem}>)
        target_link_libraries(${target} INTERFACE $<TARGET_PROPERTY:${subsystem},INTERFACE_LINK_LIBRARIES>)
    endforeach()
    target_link_libraries(${target} INTERFACE uv_flags uv_interfaces)
endfunction()

# Writes the linker's version script for a list of exported symbols, one demangled name a line.
function(uv_version_script list script)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
    file(STRINGS ${list} symbols REGEX "^[^#]")
    set(plain "")
    set(mangled "")
    foreach(symbol IN LISTS symbols)
        if(symbol MATCHES "\\(")
            string(APPEND mangled "        \"${symbol}\";\n")
        else()
            string(APPEND plain "    ${symbol};\n")
        endif()
    endforeach()
    file(CONFIGURE OUTPUT ${script} @ONLY
         CONTENT "{\nglobal:\n${plain}    extern \"C++\" {\n${mangled}    };\nlocal:\n    *;\n};\n")
endfunction()

# uv_delay_libraries(<target> OBJECTS <object library>... LIBRARIES <imported target>...)
# The target loads the libraries when it first calls one of their functions, not when it is loaded itself: most runs
# need none of them, and each brings others along. Only what ships does so, and only where the entries can be written.
function(uv_delay_libraries target)
    cmake_parse_arguments(arg "" "" "OBJECTS;LIBRARIES" ${ARGN})
    if(NOT CMAKE_BUILD_TYPE STREQUAL "Release" OR NOT CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64" OR UV_SANITIZE)
        return()
    endif()
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}Objects.txt)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}Delayed.cpp)
    set(objects "")
    foreach(library IN LISTS arg_OBJECTS)
        list(APPEND objects $<TARGET_OBJECTS:${library}>)
    endforeach()
    set(libraries "")
    foreach(library IN LISTS arg_LIBRARIES)
        list(APPEND libraries $<TARGET_FILE:${library}>)
    endforeach()
    file(GENERATE OUTPUT ${list} CONTENT "$<JOIN:${objects},\n>\n")
    add_custom_command(
        OUTPUT ${source}
        COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/cmake/delay_libraries.py --nm ${CMAKE_NM}
                --readelf ${CMAKE_READELF} --objects ${list} --output ${source} ${libraries}
        DEPENDS ${PROJECT_SOURCE_DIR}/cmake/delay_libraries.py ${list} ${objects}
        VERBATIM
    )
    target_sources(${target} PRIVATE ${source})
endfunction()

# Makes uv_all (every subsystem's objects), uv_host (what a host links beside the interfaces: foundation, catalogue,
# options and metadata), the library itself, and uv_tested (every subsystem as one shared library, which the test
# programs share instead of linking all objects each).
macro(uv_finish_subsystems)
    get_property(uv_subsystems GLOBAL PROPERTY UV_SUBSYSTEMS)
    uv_object_group(uv_all ${uv_subsystems})
    uv_object_group(uv_host uv_foundation uv_catalogue uv_identifiers uv_options uv_types uv_metadata)

    add_library(UVParser SHARED)
    target_link_libraries(UVParser PRIVATE uv_all)
    set_target_properties(UVParser PROPERTIES LINKER_LANGUAGE CXX)
    uv_delay_libraries(UVParser OBJECTS ${uv_subsystems}
                       LIBRARIES LibXml2::LibXml2 LibXslt::LibXslt Boost::regex)
    # Once loaded it stays in the process. What it leaves with its host may need its code after the last object is
    # gone: an exception that is caught, the value of an option.
    target_link_options(UVParser PRIVATE LINKER:-z,nodelete)
    if(UV_SANITIZE)
        # A sanitized library takes the runtime from its host program, which finds some symbols by name.
        # What it defines itself it takes from itself, whatever else the process has loaded.
        target_link_options(UVParser PRIVATE LINKER:-Bsymbolic)
    else()
        # Templates of the standard library come out visible whatever we ask for; the list keeps them in.
        set(version_script ${CMAKE_BINARY_DIR}/exports.map)
        uv_version_script(${PROJECT_SOURCE_DIR}/cmake/exports.txt ${version_script})
        target_link_options(UVParser PRIVATE LINKER:--version-script=${version_script} LINKER:-z,defs)
        set_property(TARGET UVParser APPEND PROPERTY LINK_DEPENDS ${version_script})
    endif()

    if(UV_TESTS OR UV_FUZZ)
        add_library(uv_tested SHARED)
        target_link_libraries(uv_tested PRIVATE uv_all)
        set_target_properties(uv_tested PROPERTIES LINKER_LANGUAGE CXX)
        target_link_options(uv_tested PRIVATE LINKER:-Bsymbolic-functions)
        target_link_libraries(uv_tested INTERFACE uv_flags uv_interfaces)
        foreach(subsystem IN LISTS uv_subsystems)
            target_link_libraries(uv_tested INTERFACE $<TARGET_PROPERTY:${subsystem},INTERFACE_LINK_LIBRARIES>)
        endforeach()
    endif()
endmacro()

# uv_test(<target> SOURCES ... [LINKS ...] [DEPENDS ...])
# A GoogleTest program over all subsystems, each of its tests known to CTest.
function(uv_test target)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS;DEPENDS" ${ARGN})
    add_executable(${target} ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE uv_tested GTest::gmock_main ${arg_LINKS})
    # What is tested is built as the preset says; optimising the tests themselves takes longer than it saves.
    target_compile_options(${target} PRIVATE -O0)
    target_compile_definitions(${target} PRIVATE UV_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                               UV_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    if(UV_SANITIZE)
        target_compile_definitions(${target} PRIVATE UV_SANITIZED)
    endif()
    # A changed line of the house links the shared library anew, and no test program.
    set_target_properties(${target} PROPERTIES LINK_DEPENDS_NO_SHARED ON)
    if(arg_DEPENDS)
        add_dependencies(${target} ${arg_DEPENDS})
    endif()
    gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 600)
endfunction()
