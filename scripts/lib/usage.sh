# shellcheck shell=bash disable=SC2154
# Sourced by scripts that begin with their usage as a comment. `script` must be the path of the script.

print_usage() {
  sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$script"
}

# Prints the usage and exits if one of the arguments is --help.
answer_help() {
  local argument
  for argument in "$@"; do
    if [[ $argument == --help ]]; then
      print_usage
      exit
    fi
  done
}

# Reports a problem with the arguments, prints the usage and exits.
refuse_arguments() {
  printf '%s: %s\n\n' "${script##*/}" "$1" >&2
  print_usage >&2
  exit 2
}

# For scripts without arguments.
take_no_arguments() {
  answer_help "$@"
  (($# == 0)) || refuse_arguments "unknown argument: $1"
}
