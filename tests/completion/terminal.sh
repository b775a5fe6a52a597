# shellcheck shell=bash
# Sourced by the tests that complete command lines in real shells. Makes `folder`, which is removed at the end.

folder=$(mktemp -d)
# Commands to the terminal; its server is one of our own, and of each shell, because it takes its time to go.
terminals=0
terminal() { tmux -u -S "$folder/terminal$terminals" -f /dev/null "$@"; }
# A shell that is told to go may still write its history while its home is being removed.
clean_up() {
  terminal kill-server 2>/dev/null || true
  for _ in {1..50}; do
    rm -rf "$folder" 2>/dev/null && return
    sleep 0.1
  done
}
trap clean_up EXIT

# Opens a shell in the current folder: bash, bare-bash (without the package bash-completion), zsh or fish. It is set up as
# its users have it, but with a plain prompt and no memory. Its start-up file holds the further arguments as lines: in zsh
# before compinit. Its environment is its home, `folder`/home, and what `environment` holds.
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

# Ends the test if the deadline is over.
keep_waiting() {
  if ((SECONDS >= deadline)); then
    printf '%s: no "%s" on the screen:\n%s\n' "$shell" "$1" "$(screen)" >&2
    exit 1
  fi
  sleep 0.02
}

# Waits until every text is on the screen; with "=" in front, as a whole line. A machine may be slow, so there is time.
await() {
  local deadline=$((SECONDS + 30)) text
  for text in "$@"; do
    case $text in
      =*) until screen | grep -qxF -- "${text#=}"; do keep_waiting "$text"; done ;;
      *) until screen | grep -qF -- "$text"; do keep_waiting "$text"; done ;;
    esac
  done
}

# Clears the line and the screen, and waits until nothing but the prompt is left.
fresh() {
  local deadline=$((SECONDS + 30))
  terminal send-keys C-e C-u C-l
  until [[ $(screen) == '$' ]]; do keep_waiting 'prompt alone'; done
}

# What is typed, then a TAB, makes the line that is shown. The letter typed after it tells whether a blank follows.
completes() {
  terminal send-keys -l -- "$1"
  terminal send-keys Tab
  terminal send-keys -l X
  await "=\$ $2X"
  fresh
}

# What is typed, then a TAB, lists all the candidates.
lists() {
  terminal send-keys -l -- "$1"
  terminal send-keys Tab
  shift
  await "$@"
  fresh
}

# What is typed, then a TAB, makes a call that prints the line that is shown.
prints() {
  terminal send-keys -l -- "$1"
  terminal send-keys Tab Enter
  await "=$2"
  fresh
}
