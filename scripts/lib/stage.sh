# shellcheck shell=bash
# Sourced by the scripts that do what takes long.

# Runs a command as the stage of that title, which is told on standard error. On a terminal this is one line that moves
# with what the command prints, elsewhere it is the title alone. The output is shown in full where the command fails.
run_stage() {
  follow_command at-once "$@"
}

# As run_stage, for a build that may find nothing to do and then tells nothing.
run_build_stage() {
  follow_command at-first-step "$@"
}

follow_command() {
  local when=$1 title=$2 log status=0
  shift 2
  log=$(mktemp)
  { "$@" </dev/null 2>&1 || echo "$?" >"$log.status"; } | follow_output "$when" "$title" "$log"
  if [[ -f $log.status ]]; then
    status=$(<"$log.status")
    cat "$log" >&2
  fi
  rm -f "$log" "$log.status"
  return "$status"
}

# Keeps what a command prints in the file `log`, and tells how far it is.
follow_output() {
  local when=$1 title=$2 log=$3 line width=''
  if [[ -t 2 && ${TERM:-dumb} != dumb ]]; then
    width=$(stty size <&2 | cut -d ' ' -f 2)
    # A terminal may not know its width.
    ((width > 1)) || width=80
    printf '\r%.*s\e[K' $((width - 1)) "$title" >&2
  elif [[ $when == at-once ]]; then
    printf '%s\n' "$title" >&2
  fi
  while IFS= read -r line; do
    printf '%s\n' "$line" >>"$log"
    # Looking for what is to be done is no step.
    if [[ $line == 'ninja: no work to do.' || $line == '[0/'* ]]; then
      continue
    fi
    if [[ $width ]]; then
      printf '\r%.*s\e[K' $((width - 1)) "$title: ${line#-- }" >&2
    elif [[ $when == at-first-step ]]; then
      printf '%s\n' "$title" >&2
      when=told
    fi
  done
  if [[ $width ]]; then
    printf '\r\e[K' >&2
  fi
}
