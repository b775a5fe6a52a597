# shellcheck shell=bash
# Sourced by the tests that complete command lines in real shells. Creates `folder`, and removes it at the exit.

folder=$(mktemp -d)
# Runs a tmux command. Each shell gets its own server, because a server exits slowly.
terminals=0
terminal() { tmux -u -S "$folder/terminal$terminals" -f /dev/null "$@"; }
# A killed shell may still write its history while its home folder is removed.
clean_up() {
  terminal kill-server 2>/dev/null || true
  for _ in {1..50}; do
    rm -rf "$folder" 2>/dev/null && return
    sleep 0.1
  done
}
trap clean_up EXIT

# Opens a shell in the current folder: bash, bare-bash (without the package bash-completion), zsh or fish. It has a
# typical set-up, but a short prompt. The further arguments are lines of its startup file; in zsh they come before
# compinit. Its environment contains HOME=`folder`/home and the variables in `environment`.
environment=()
open_shell() {
  local command home=$folder/home
  shell=$1
  shift
  mkdir -p "$home/.config/fish"
  case $shell in
    bash | bare-bash)
      [[ $shell == bare-bash ]] || set -- '. /usr/share/bash-completion/bash_completion' "$@"
      printf '%s\n' "PS1='$ '" "bind 'set show-all-if-ambiguous on'" "$@" >"$home/.bashrc"
      command=(bash --noprofile --rcfile "$home/.bashrc")
      ;;
    zsh)
      printf '%s\n' "PS1='$ '" "$@" 'autoload -U compinit' 'compinit -u -D' >"$home/.zshrc"
      command=(zsh -d)
      ;;
    fish)
      printf '%s\n' 'set fish_greeting' 'set fish_autosuggestion_enabled 0' 'function fish_prompt' "printf '$ '" end \
        "$@" >"$home/.config/fish/config.fish"
      command=(fish)
      ;;
  esac
  terminal new-session -d -x 160 -y 50 env -i HOME="$home" TERM=screen LC_ALL=C.UTF-8 "${environment[@]}" "${command[@]}"
  await '=$'
}

close_shell() {
  terminal kill-server
  ((++terminals))
}

screen() { terminal capture-pane -p; }

# Waits a moment for the text $1. Fails the test after the deadline.
keep_waiting() {
  if ((SECONDS >= deadline)); then
    printf '%s: no "%s" on the screen:\n%s\n' "$shell" "$1" "$(screen)" >&2
    exit 1
  fi
  sleep 0.02
}

# Waits until every text is on the screen. A text after "=" must be a whole line. Waits up to 30 s, for slow machines.
await() {
  local deadline=$((SECONDS + 30)) text
  for text in "$@"; do
    case $text in
      =*) until screen | grep -qxF -- "${text#=}"; do keep_waiting "$text"; done ;;
      *) until screen | grep -qF -- "$text"; do keep_waiting "$text"; done ;;
    esac
  done
}

# Clears the line and the screen, and waits until the screen shows only the prompt.
fresh() {
  local deadline=$((SECONDS + 30))
  terminal send-keys C-e C-u C-l
  until [[ $(screen) == '$' ]]; do keep_waiting 'prompt alone'; done
}

# Types $1 and TAB, and expects the line $2. An X typed afterwards shows whether a space was added.
completes() {
  terminal send-keys -l -- "$1"
  terminal send-keys Tab
  terminal send-keys -l X
  await "=\$ $2X"
  fresh
}

# Types $1 and TAB, and expects these candidates.
lists() {
  terminal send-keys -l -- "$1"
  terminal send-keys Tab
  shift
  await "$@"
  fresh
}

# Types $1, TAB and Enter, and expects the output $2.
prints() {
  terminal send-keys -l -- "$1"
  terminal send-keys Tab Enter
  await "=$2"
  fresh
}
