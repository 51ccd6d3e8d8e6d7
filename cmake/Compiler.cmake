# How everything of ours is compiled: warnings, sanitizers, compiler cache.

add_library(tavlora_options INTERFACE)

if(MSVC)
  target_compile_options(tavlora_options INTERFACE /W4 /permissive- /utf-8)
  if(TAVLORA_WERROR)
    target_compile_options(tavlora_options INTERFACE /WX)
  endif()
else()
  target_compile_options(tavlora_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
    -Wcast-qual -Wformat=2 -Wimplicit-fallthrough)
  if(TAVLORA_WERROR)
    target_compile_options(tavlora_options INTERFACE -Werror)
  endif()
endif()

target_compile_definitions(tavlora_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_NO_FOREACH
  TAVLORA_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
  TAVLORA_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  TAVLORA_VERSION_REVISION=${PROJECT_VERSION_PATCH})

if(TAVLORA_SANITIZE)
  target_compile_options(tavlora_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tavlora_options INTERFACE -fsanitize=address,undefined)
endif()

if(TAVLORA_FUZZ)
  # Coverage feedback for the fuzzer comes from the code of the library itself.
  target_compile_options(tavlora_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
  target_link_options(tavlora_options INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers need these two told to ccache, or every file misses.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(tavlora_options INTERFACE -fpch-preprocess)
  endif()
endif()
