# nempdf_sources(CORE a.cpp ... WINDOWS b.cpp ...)  adds the units of the current folder to the two libraries:
#   NemPdfCore     window-free, builds for Windows and natively
#   NemPdfWindows  everything that needs <windows.h> (only where that exists)
function(nempdf_sources)
  cmake_parse_arguments(arg "" "" "CORE;WINDOWS" ${ARGN})
  list(TRANSFORM arg_CORE PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  list(TRANSFORM arg_WINDOWS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  target_sources(NemPdfCore PRIVATE ${arg_CORE})
  if(WIN32)
    target_sources(NemPdfWindows PRIVATE ${arg_WINDOWS})
  endif()
endfunction()

# The flags that every unit of the project is compiled with.
add_library(NemPdfFlags INTERFACE)
target_include_directories(NemPdfFlags INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include
                                                 ${PROJECT_BINARY_DIR}/generated)
target_compile_options(NemPdfFlags INTERFACE -Wall -Wextra -Werror $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual
                                             -Wnon-virtual-dtor -Wsuggest-override> -fstack-protector-strong)
target_compile_definitions(NemPdfFlags INTERFACE $<$<CONFIG:RelWithDebInfo,Debug>:_GLIBCXX_ASSERTIONS>)
if(WIN32)
  target_compile_definitions(NemPdfFlags INTERFACE UNICODE _UNICODE STRICT NOMINMAX WINVER=0x0A00
                                                   _WIN32_WINNT=0x0A00 NTDDI_VERSION=0x0A000000 _WIN32_IE=0x0A00)
  target_compile_options(NemPdfFlags INTERFACE -Wno-cast-function-type)
  # What -fstack-protector-strong calls, in place of the tool chain's own library.
  add_library(NemPdfStackProtector STATIC ${PROJECT_SOURCE_DIR}/src/DriverLIB/StackProtector.cpp)
  target_link_libraries(NemPdfFlags INTERFACE NemPdfStackProtector)
else()
  # 16-bit wide characters, as on Windows. libc's wide functions must not be called then: tests/support/ShortWide.cpp
  # stands in for the few that the standard library itself needs.
  target_compile_options(NemPdfFlags INTERFACE -fshort-wchar -fno-builtin)
  target_compile_definitions(NemPdfFlags INTERFACE _GLIBCXX_EXTERN_TEMPLATE=0)
  if(NEMPDF_SANITIZE)
    target_compile_options(NemPdfFlags INTERFACE -fsanitize=${NEMPDF_SANITIZE} -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
    target_link_options(NemPdfFlags INTERFACE -fsanitize=${NEMPDF_SANITIZE})
  endif()
endif()

# The standard headers that take most of a unit's compile time are compiled once for each library. A unit includes what
# it uses all the same; the fuzzers' build does without, and finds what a window-free one lacks.
set(NEMPDF_STANDARD_HEADERS <algorithm> <functional> <memory> <string> <string_view> <utility> <vector>)

add_library(NemPdfCore STATIC)
target_link_libraries(NemPdfCore PUBLIC NemPdfFlags)
target_precompile_headers(NemPdfCore PRIVATE ${NEMPDF_STANDARD_HEADERS})
if(WIN32)
  # What the library does not use of its own code is left out.
  target_compile_options(NemPdfCore PRIVATE -ffunction-sections -fdata-sections)
  add_library(NemPdfWindows STATIC)
  target_compile_options(NemPdfWindows PRIVATE -ffunction-sections -fdata-sections)
  target_link_libraries(NemPdfWindows PUBLIC NemPdfCore)
  target_precompile_headers(NemPdfWindows PRIVATE ${PROJECT_SOURCE_DIR}/src/window/Windows.h ${NEMPDF_STANDARD_HEADERS})
endif()
