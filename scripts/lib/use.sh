# shellcheck shell=bash disable=SC2154
# Sourced by every script. Expects the path of the script in `script`; the comment at its head tells its use.

print_use() {
  sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$script"
}

# Where one of the arguments is --help, prints the use and ends the script.
answer_help() {
  local argument
  for argument in "$@"; do
    if [[ $argument == --help ]]; then
      print_use
      exit
    fi
  done
}

# Ends the script because of what is wrong with its arguments.
refuse_use() {
  printf '%s: %s\n\n' "scripts/${script##*/}" "$1" >&2
  print_use >&2
  exit 2
}

# For scripts without arguments: answers --help, and refuses everything else.
take_no_arguments() {
  answer_help "$@"
  if (($# != 0)); then
    refuse_use "unknown argument: $1"
  fi
}
