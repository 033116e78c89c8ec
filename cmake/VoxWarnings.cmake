# SPDX-License-Identifier: MIT
# vox::warnings: link it PRIVATE to every target of ours.

add_library(vox_warnings INTERFACE)
add_library(vox::warnings ALIAS vox_warnings)
target_compile_options(vox_warnings INTERFACE -Wall -Wextra -pedantic $<$<BOOL:${VOX_WERROR}>:-Werror>)
