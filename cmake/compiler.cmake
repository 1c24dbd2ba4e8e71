# How everything of ours is compiled: strict arithmetic, strict warnings.
include(CheckCXXSourceCompiles)
include(CheckCXXSymbolExists)

add_library(glorbix_compiler INTERFACE)

# The marble must roll alike on every machine, so the compiler must not fuse multiply and add.
target_compile_options(glorbix_compiler INTERFACE -ffp-contract=off)
# The x87 unit of 32-bit x86 would calculate with more bits than the types have.
check_cxx_symbol_exists(__i386__ cstddef GLORBIX_X86_32)
if(GLORBIX_X86_32)
  target_compile_options(glorbix_compiler INTERFACE -msse2 -mfpmath=sse)
endif()
# With this vectorizer, GCC 12 gives other last bits at -O2 than at -O1 and than other compilers.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(glorbix_compiler INTERFACE -fno-tree-slp-vectorize)
endif()
target_compile_options(glorbix_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  $<$<BOOL:${GLORBIX_WERROR}>:-Werror>)

# GCC 12 sees overlaps that are not there in the addition of strings (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(glorbix_compiler INTERFACE -Wno-restrict)
endif()

# Stops where the compiler cannot make a program with that option.
function(need_runtime name program flag why)
  set(CMAKE_REQUIRED_FLAGS ${flag})
  check_cxx_source_compiles("${program}" ${name})
  need(${name} "A compiler with ${flag} and its libraries" "clang with libclang-rt-dev" ${why})
endfunction()

if(GLORBIX_SANITIZE)
  need_runtime(GLORBIX_CAN_SANITIZE "int main() { return 0; }" -fsanitize=address,undefined
    GLORBIX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(GLORBIX_FUZZ)
  need_runtime(GLORBIX_CAN_FUZZ
    "extern \"C\" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }"
    -fsanitize=fuzzer GLORBIX_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
