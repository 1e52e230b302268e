# What the scripts of this folder begin with. They are given SOURCES, BUILD, and WORK, a folder for what they make.
set -euo pipefail
unset LD_LIBRARY_PATH
tree=$WORK/moved/away # where the installed tree lies, which was made elsewhere
l3sm=$tree/bin/l3sm

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# same WHAT EXPECTED ACTUAL
same() {
  [[ $2 == "$3" ]] || fail "$1: expected \"$2\", got \"$3\""
}
