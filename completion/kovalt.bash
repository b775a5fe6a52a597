# bash completion for Kovalt                               -*- shell-script -*-
# shellcheck shell=bash

# The helper that knows the candidates, found from the place of this script.
_kovalt_helper=${BASH_SOURCE[0]%/*}/@KOVALT_COMPLETE@
[[ $_kovalt_helper == /* ]] || _kovalt_helper=$PWD/$_kovalt_helper

# Sets `value` to the text that the word $1 stands for, and `quote` to the quote that it leaves open. Nothing is run for
# it: of all expansions only a home folder and plain variables are known.
_kovalt_unquote() {
  local rest=$1 char
  value='' quote=''
  if [[ $rest =~ ^(\~([a-zA-Z_][a-zA-Z_0-9.-]*)?)(/|$) ]]; then
    # Nothing but a user's name is evaluated; it stays as it is where there is no such user.
    rest=${rest:${#BASH_REMATCH[1]}}
    eval "value=${BASH_REMATCH[1]}"
  fi
  while [[ $rest ]]; do
    char=${rest:0:1} rest=${rest:1}
    case $quote$char in
      \' | \" | \'\' | \"\") [[ $quote ]] && quote='' || quote=$char ;;
      \\ | \"\\)
        # Between double quotes a backslash is itself, but for a few characters.
        [[ $quote && $rest != [\$\`\"\\]* ]] && value+=$char
        value+=${rest:0:1} rest=${rest:1}
        ;;
      \$ | \"\$)
        if [[ $rest =~ ^([a-zA-Z_][a-zA-Z_0-9]*) || $rest =~ ^\{([a-zA-Z_][a-zA-Z_0-9]*)\} ]]; then
          rest=${rest:${#BASH_REMATCH[0]}}
          char=${BASH_REMATCH[1]} char=${!char-}
        fi
        value+=$char
        ;;
      *) value+=$char ;;
    esac
  done
}

# Sets `quoted` to the text $1 as it is typed after the quote that is left open.
_kovalt_quote() {
  case $quote in
    \') quoted=${1//\'/"'\\''"} ;;
    \")
      quoted=${1//\\/\\\\}
      quoted=${quoted//\"/'\"'}
      quoted=${quoted//\$/'\$'}
      quoted=${quoted//\`/'\`'}
      ;;
    *) printf -v quoted %q "$1" ;;
  esac
  [[ $1 ]] || quoted=''
}

# Sets `candidates` to what can stand for the word at the cursor of `line`, and `kind` to what it is.
_kovalt_ask() {
  mapfile -t candidates < <("$_kovalt_helper" "$cword" "${line[@]}" 2>/dev/null)
  kind=${candidates[0]-}
  candidates=("${candidates[@]:1}")
  candidates=("${candidates[@]%%$'\t'*}")
}

_kovalt() {
  # shellcheck disable=SC2034 # bash-completion sets all four.
  local cur prev words cword
  _init_completion -n '=:@' || return

  local word value quote quoted kind
  local -a line=() candidates=()
  for word in "${words[@]}"; do
    _kovalt_unquote "$word"
    line+=("$value")
  done
  _kovalt_unquote "$cur"
  line[cword]=$value

  # The line editor replaces no more than $2, which begins after the last quote, "=" or ":".
  local kept=${cur:0:${#cur}-${#2}}
  _kovalt_ask
  if [[ $kind == files ]]; then
    _filedir
    COMPREPLY=("${COMPREPLY[@]#"$kept"}")
    return
  fi
  if ((${#candidates[@]} == 1)) && [[ ${candidates[0]} == *[.=] ]]; then
    compopt -o nospace
    if [[ $quote ]]; then
      # A quote is closed after the only candidate, but not where candidates for the next step stand beside it.
      local only=${candidates[0]}
      line[cword]=$only
      _kovalt_ask
      candidates=("$only" "${candidates[@]}")
    fi
  fi

  # What is typed stays as it is quoted, but for a backslash that quotes nothing yet.
  local typed=${cur:${#kept}}
  [[ $quote || $cur != *\\ || $cur == *\\\\ ]] || typed=${typed%\\}
  for word in "${candidates[@]}"; do
    _kovalt_quote "${word:${#value}}"
    COMPREPLY+=("$typed$quoted")
  done
  if ((${#COMPREPLY[@]} == 1)); then
    # The line editor forgets to close a quote after a name that ends in one.
    COMPREPLY[0]+=$quote
  elif [[ $kind == 'words cut' && $COMP_TYPE == @(33|63|64) ]]; then
    # Only where the candidates are listed: nothing is inserted then but what all of them begin with.
    local start=${COMPREPLY[0]}
    for word in "${COMPREPLY[@]}"; do
      while [[ $word != "$start"* ]]; do start=${start%?}; done
    done
    COMPREPLY+=("$start (the list is cut)")
  fi
} && complete -F _kovalt Kovalt kovalt
