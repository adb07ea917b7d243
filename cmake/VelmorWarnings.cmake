# Warnings are errors for everything the project compiles itself.
function(velmor_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()
