# Sourced by the scripts for Windows: where they keep what is made once (libjpeg-turbo, a 32-bit Debian, Wine's prefixes).
# cmake/mingw.cmake looks there, too.
windows_cache=${XDG_CACHE_HOME:-$HOME/.cache}/morpho-windows
# The commands of another user than root that need root.
as_root=()
if [ "$(id -u)" -ne 0 ]; then as_root=(sudo); fi
