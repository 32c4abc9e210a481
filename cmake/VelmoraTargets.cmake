# What every target of ours shares: language, warnings, strict Qt, precompiled headers, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Only libraries with widgets have signals and slots of their own.
set(CMAKE_AUTOMOC OFF)
set(CMAKE_AUTORCC ON)

find_program(CCACHE ccache)
if(CCACHE)
  # A precompiled header carries time stamps, which ccache must be told to overlook.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime;${CCACHE}")
endif()

add_library(velmora_settings INTERFACE)
target_compile_definitions(velmora_settings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400
  VELMORA_VERSION="${PROJECT_VERSION}")
target_include_directories(velmora_settings INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_options(velmora_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
if(VELMORA_SANITIZE)
  # With the sanitizers' code in between, GCC takes some initialised variants for uninitialised ones.
  target_compile_options(velmora_settings INTERFACE
    -fsanitize=${VELMORA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<$<CXX_COMPILER_ID:GNU>:-Wno-error=maybe-uninitialized>)
  target_link_options(velmora_settings INTERFACE -fsanitize=${VELMORA_SANITIZE})
endif()
if(VELMORA_COVERAGE)
  target_compile_options(velmora_settings INTERFACE --coverage)
  target_link_options(velmora_settings INTERFACE --coverage)
endif()
if(VELMORA_TIDY)
  # It is another compiler: precompiled headers of the first mean nothing to it.
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
  find_program(CLANG_TIDY clang-tidy REQUIRED)
  set(CMAKE_CXX_CLANG_TIDY "${CLANG_TIDY};--quiet;--extra-arg=-Wno-unknown-warning-option")
endif()

# The precompiled headers, one for each level of Qt.
foreach(level core widgets)
  add_library(velmora_pch_${level} OBJECT "${CMAKE_SOURCE_DIR}/cmake/pch_${level}.cpp")
  target_link_libraries(velmora_pch_${level} PUBLIC velmora_settings Qt6::Core)
  target_precompile_headers(velmora_pch_${level} PRIVATE "${CMAKE_SOURCE_DIR}/cmake/pch_${level}.h")
endforeach()
target_link_libraries(velmora_pch_widgets PUBLIC Qt6::Widgets)

# velmora_library(NAME core|widgets SOURCES ... LINKS ...): a static library of ours on that level of Qt.
# "core" libraries see Qt6::Core alone, so that the build itself proves that they need no window.
function(velmora_library name level)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC velmora_settings ${ARG_LINKS} Qt6::Core)
  if(level STREQUAL "widgets")
    target_link_libraries(${name} PUBLIC Qt6::Widgets)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
  endif()
  target_precompile_headers(${name} REUSE_FROM velmora_pch_${level})
endfunction()

# velmora_program(NAME core|widgets SOURCES ... LINKS ...)
function(velmora_program name level)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velmora_settings ${ARG_LINKS} Qt6::Core)
  if(level STREQUAL "widgets")
    target_link_libraries(${name} PRIVATE Qt6::Widgets)
  endif()
  target_precompile_headers(${name} REUSE_FROM velmora_pch_${level})
endfunction()

# velmora_test(NAME core|widgets SOURCES ... LINKS ...): one GoogleTest binary for a folder, run by CTest as one test.
# Widget tests run on the offscreen platform, with settings and temporary files of their own.
function(velmora_test name level)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velmora_settings ${ARG_LINKS} GTest::gtest GTest::gmock Qt6::Test Qt6::Core)
  if(level STREQUAL "widgets")
    target_link_libraries(${name} PRIVATE Qt6::Widgets velmora_test_main_widgets)
  else()
    target_link_libraries(${name} PRIVATE velmora_test_main_core)
  endif()
  target_compile_definitions(${name} PRIVATE VELMORA_TEST_DATA="${CMAKE_SOURCE_DIR}/tests")
  target_precompile_headers(${name} REUSE_FROM velmora_test_main_${level})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endfunction()
