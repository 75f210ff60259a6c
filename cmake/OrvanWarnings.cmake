# Warnings every project target builds with.
function(orvan_set_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
endfunction()
