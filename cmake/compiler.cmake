# How everything of ours is compiled: strict arithmetic, strict warnings.
add_library(glorbix_compiler INTERFACE)

# The marble must roll alike on every machine: no multiply-add is contracted behind our back.
target_compile_options(glorbix_compiler INTERFACE -ffp-contract=off)
target_compile_options(glorbix_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${GLORBIX_WERROR}>:-Werror>)

if(GLORBIX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
