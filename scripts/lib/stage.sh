# shellcheck shell=bash
# Sourced by the scripts that do what takes long.

# Reads what a command prints, keeps it in the file `log`, and tells on standard error how far it is: on a terminal in
# one line that moves, elsewhere by the title alone, once there is something to tell.
follow_stage() {
  local title=$1 log=$2 line width='' told=
  if [[ -t 2 && ${TERM:-dumb} != dumb ]]; then
    width=$(stty size <&2 | cut -d ' ' -f 2)
    # A terminal may not know its width.
    ((width > 1)) || width=80
    printf '\r%.*s\e[K' $((width - 1)) "$title" >&2
  fi
  while IFS= read -r line; do
    printf '%s\n' "$line" >>"$log"
    # Looking for what is to be done is nothing to tell.
    if [[ $line == 'ninja: no work to do.' || $line == '[0/'* ]]; then
      continue
    fi
    if [[ $width ]]; then
      printf '\r%.*s\e[K' $((width - 1)) "$title: ${line#-- }" >&2
    elif [[ ! $told ]]; then
      printf '%s\n' "$title" >&2
      told=yes
    fi
  done
  if [[ $width ]]; then
    printf '\r\e[K' >&2
  fi
}

# Runs a command as the stage of that title. What it prints is shown only where it fails.
run_stage() {
  local title=$1 log status=0
  shift
  log=$(mktemp)
  { "$@" </dev/null 2>&1 || echo "$?" >"$log.status"; } | follow_stage "$title" "$log"
  if [[ -f $log.status ]]; then
    status=$(<"$log.status")
    cat "$log" >&2
  fi
  rm -f "$log" "$log.status"
  return "$status"
}
