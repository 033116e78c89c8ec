# SPDX-License-Identifier: MIT
# VOX_SANITIZE covers every target of the build: a sanitized object next to a plain one hides errors.

if(VOX_SANITIZE)
  list(JOIN VOX_SANITIZE "," sanitizers)
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
endif()
