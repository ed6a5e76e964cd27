# One helper for every layer: a static library of ours.
#
#   app_module(NAME UNITS … [SOURCES …] [HEADERS …] DEPENDS … [PRIVATE_DEPENDS …])
#
# Names are relative to Sources/Tocca, the one include root. A unit is a source and the header of the same name; including its
# header first, it proves that the header compiles alone, where sources are. HEADERS are those without a source: each is compiled alone, with just
# this module's dependencies, by the target all_verify_interface_header_sets. Without a source it is an interface library.

add_library(tocca_options INTERFACE)
target_compile_options(tocca_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Optimising, g++ 12 sees overlapping copies, and copies beyond the end, inside std::string's own operators.
    target_compile_options(tocca_options INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()
if(CMAKE_UNITY_BUILD)
    # What a file has to itself is seen by those that are compiled with it.
    target_compile_options(tocca_options INTERFACE -Wno-shadow -Wno-subobject-linkage)
endif()
if(TOCCA_WERROR)
    target_compile_options(tocca_options INTERFACE -Werror)
endif()
if(TOCCA_SANITIZE)
    target_compile_options(tocca_options INTERFACE -fsanitize=${TOCCA_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(tocca_options INTERFACE -fsanitize=${TOCCA_SANITIZE})
endif()
# app_precompile(NAME HEADER…): the libraries' headers that most sources of a target read are read once.
# An include that is missing goes unseen then, so something must be built without.
function(app_precompile name)
    if(TOCCA_PRECOMPILE)
        target_precompile_headers(${name} PRIVATE ${ARGN})
    endif()
endfunction()

find_package(Threads REQUIRED)
target_link_libraries(tocca_options INTERFACE Threads::Threads)

function(app_module name)
    cmake_parse_arguments(ARG "" "" "UNITS;SOURCES;HEADERS;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
    list(TRANSFORM ARG_UNITS APPEND .cpp)
    list(APPEND ARG_SOURCES ${ARG_UNITS})
    if(ARG_SOURCES)
        list(TRANSFORM ARG_SOURCES PREPEND ${PROJECT_SOURCE_DIR}/Sources/Tocca/)
        add_library(${name} STATIC ${ARG_SOURCES})
        set(scope PUBLIC)
        target_link_libraries(${name} PRIVATE ${ARG_PRIVATE_DEPENDS})
    else()
        add_library(${name} INTERFACE)
        set(scope INTERFACE)
    endif()
    target_link_libraries(${name} ${scope} tocca_options ${ARG_DEPENDS})
    app_headers(${name} ${scope} ${ARG_HEADERS})
endfunction()

# app_headers(NAME SCOPE HEADER…): the headers of a library that no source of the same name includes first.
function(app_headers name scope)
    set(root ${PROJECT_SOURCE_DIR}/Sources/Tocca)
    set(headers ${ARGN})
    list(TRANSFORM headers PREPEND ${root}/)
    target_include_directories(${name} ${scope} ${root})
    target_sources(${name} ${scope} FILE_SET HEADERS BASE_DIRS ${root} FILES ${headers})
endfunction()

# app_test_program(NAME SOURCES … DEPENDS …): a program of GoogleTest cases; the caller says how ctest runs it.
function(app_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} tocca_options GTest::gmock GTest::gtest)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/Tests ${PROJECT_SOURCE_DIR}/Tools)
    # A test waits for what it tests, not for itself; optimising its macros takes longer than running them.
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O0>)
    if(NOT TOCCA_PRECOMPILE)
        return()
    endif()
    list(LENGTH ARG_SOURCES count)
    if(NOT ARG_DEPENDS MATCHES "Qt6::|PkgConfig::|_(ui|x11|desktop|audio)(;|$)")
        target_precompile_headers(${name} REUSE_FROM tocca_test_headers)
    elseif(count GREATER 2)
        app_precompile(${name} ${test_headers}) # compiled with flags of its libraries' own
    endif()
endfunction()

set(test_headers <gmock/gmock.h> <gtest/gtest.h> <filesystem> <functional> <memory> <optional> <string> <vector>)
if(TOCCA_PRECOMPILE AND BUILD_TESTING)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/TestHeaders.cpp CONTENT "")
    add_library(tocca_test_headers OBJECT ${PROJECT_BINARY_DIR}/TestHeaders.cpp)
    target_link_libraries(tocca_test_headers PRIVATE tocca_options GTest::gmock GTest::gtest)
    target_compile_options(tocca_test_headers PRIVATE $<$<CONFIG:Release>:-O0>)
    app_precompile(tocca_test_headers ${test_headers})
endif()

# app_test(NAME SOURCES … DEPENDS … [LABELS …] [PROPERTIES …]): a GoogleTest program whose cases ctest knows one by one.
function(app_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;LABELS;PROPERTIES" ${ARGN})
    app_test_program(${name} SOURCES ${ARG_SOURCES} DEPENDS ${ARG_DEPENDS} GTest::gtest_main)
    if(ARG_LABELS)
        list(APPEND ARG_PROPERTIES LABELS "${ARG_LABELS}")
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ${ARG_PROPERTIES})
endfunction()
