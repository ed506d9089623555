# SPDX-License-Identifier: MIT
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 17)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Programs lie in bin/ and find their resources in ../share/leafcast, in the build tree as installed.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# What every target of ours is compiled with; third-party headers are SYSTEM and exempt.
add_library(leafcast_compiler INTERFACE)
target_compile_options(leafcast_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnull-dereference -Wformat=2
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast;-Wnon-virtual-dtor;-Woverloaded-virtual>
  -Werror)
target_compile_definitions(leafcast_compiler INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
  QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

if(LEAFCAST_FUZZ)
  set(LEAFCAST_SANITIZE ON)
  add_compile_options(-fsanitize=fuzzer-no-link)
  # clang 14 reads coroutines but does not say so to the C++ library and to Asio.
  add_compile_definitions(__cpp_impl_coroutine=201902L BOOST_ASIO_HAS_CO_AWAIT BOOST_ASIO_HAS_STD_COROUTINE)
  add_compile_options(-Wno-builtin-macro-redefined)
endif()

if(LEAFCAST_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# clang 14 can't write what its check of function types needs into a coroutine.
if(LEAFCAST_FUZZ)
  add_compile_options(-fno-sanitize=function)
endif()
