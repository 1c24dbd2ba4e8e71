# need(FOUND WHAT PACKAGE WHY): stops the configuration where the variable FOUND is false, and names
# what is missing, Debian's package of it, and what asks for it.
function(need found what package why)
  if(NOT ${found})
    message(FATAL_ERROR "${what} was not found; ${why} needs it. Debian's package: ${package}")
  endif()
endfunction()

# The same for a program. Its path is left in GLORBIX_<name>.
function(need_program name package why)
  find_program(GLORBIX_${name} ${name})
  need(GLORBIX_${name} "The program ${name}" ${package} "${why}")
endfunction()
