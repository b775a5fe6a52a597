# bash completion for Kovalt                               -*- shell-script -*-
# shellcheck shell=bash

# The helper that prints the candidates, by a path relative to this script.
_kovalt_helper=${BASH_SOURCE[0]%/*}/@KOVALT_COMPLETE@
[[ $_kovalt_helper == /* ]] || _kovalt_helper=$PWD/$_kovalt_helper

# Reads $1, the next part of the command line. Appends to `line` the value of each complete word after quote removal and
# expansion, except those that a redirection names. Sets for the last word:
# - `begun` if it is not empty as typed, `redirected` if it names the file of a redirection;
# - `value` to its value, `quote` to the quote that it leaves open, `inside` to the text typed after that quote, and
#   `escape` to a backslash at its end;
# - `unclear` if bash could expand it together with the text that is inserted after it. An expansion with its own
#   quoting rules, such as `$(`, sets `lost`: this word and all later ones are then unclear.
# Runs nothing: it expands only a home folder and plain variables.
_kovalt_read() {
  local rest=$1 char
  while [[ $rest ]]; do
    if [[ ! $quote && $rest == [[:blank:]\<\>]* ]]; then
      if [[ $begun ]]; then
        # A number directly before "<" or ">" belongs to the redirection.
        [[ $redirected || $rest == [\<\>]* && $value == +([0-9]) ]] || line+=("$value")
        redirected=''
      fi
      [[ $rest == [[:blank:]]* ]] || redirected=1
      begun='' value='' unclear=$lost rest=${rest:1}
    elif [[ ! $begun && $rest =~ ^(\~([a-zA-Z_][a-zA-Z_0-9.-]*)?)(/|[[:blank:]]|$) ]]; then
      # This evaluates only a user's name, and keeps it if there is no such user.
      rest=${rest:${#BASH_REMATCH[1]}} begun=1 unclear=1
      eval "value=${BASH_REMATCH[1]}"
    else
      char=${rest:0:1} rest=${rest:1} begun=1
      case $quote$char in
        \' | \" | \'\' | \"\") [[ $quote ]] && quote='' || quote=$char inside=$rest ;;
        \\ | \"\\)
          [[ $rest ]] || escape=\\
          # Between double quotes a backslash is literal, except before a few characters.
          [[ $rest && $quote && $rest != [\$\`\"\\]* ]] && value+=$char
          value+=${rest:0:1} rest=${rest:1}
          ;;
        \$ | \"\$)
          if [[ $rest =~ ^([a-zA-Z_][a-zA-Z_0-9]*) || $rest =~ ^\{([a-zA-Z_][a-zA-Z_0-9]*)\} ]]; then
            rest=${rest:${#BASH_REMATCH[0]}}
            char=${BASH_REMATCH[1]} char=${!char-}
            [[ $rest ]] || unclear=1
          else
            unclear=1
            [[ $rest != [\(\{\[\']* ]] || lost=1
          fi
          value+=$char
          ;;
        \` | \"\`) value+=$char unclear=1 lost=1 ;;
        [~*?[\{\#"$history"]) value+=$char unclear=1 ;;
        *) value+=$char ;;
      esac
    fi
  done
}

# Sets `quoted` to what must be typed for the text $1: after the open quote, or with backslashes if none is open.
_kovalt_quote() {
  local i char special
  quoted=$1
  case $quote in
    \') special='' quoted=${quoted//\'/"'\\''"} ;;
    \") special='\"$`' ;;
    *) special=$'\\ !"#$&\'()*,;<>?[]^`{|}~' ;;
  esac
  for ((i = 0; i < ${#special}; ++i)); do
    char=${special:i:1}
    quoted=${quoted//"$char"/"\\$char"}
  done
}

# Sets `candidates` to the candidates for the word at the cursor of `line`, and `kind` to their kind.
#
# The names in a file are untrusted: bash must not run or expand one. _kovalt_quote escapes them, with these exceptions:
# - Names with a history character are left out between double quotes, where nothing escapes it, and everywhere if it is
#   not "!".
# - Names with letters beyond ASCII are left out if the locale is not UTF-8: bash may see special characters in their
#   bytes, or miss some.
# - After an unclear word, all names are left out.
_kovalt_ask() {
  local answer candidate letter
  mapfile -t answer < <("$_kovalt_helper" "$cword" "${line[@]}" 2>/dev/null)
  kind=${answer[0]-}
  candidates=()
  printf -v letter '\u00e9'
  for candidate in "${answer[@]:1}"; do
    candidate=${candidate%%$'\t'*}
    [[ $unclear ||
      $candidate == *"$history"* && ($quote == \" || $history != !) ||
      $candidate == *[![:ascii:]]* && $letter != $'\xc3\xa9' ]] || candidates+=("$candidate")
  done
}

# Sets `after` to the words after the one at the cursor.
_kovalt_read_after() {
  local begun=1 redirected='' value=$value quote=$quote inside escape unclear lost
  local -a line=()
  _kovalt_read "${COMP_LINE:COMP_POINT} "
  after=("${line[@]:1}")
}

# Completes a file name. $1 is the part of the word that the line editor replaces.
_kovalt_files() {
  local path=$value
  compopt -o bashdefault -o default
  if [[ ! $quote && $path == *[=:]* ]]; then
    # The line editor itself would look only for the text after the "=" or ":".
    begun='' value=''
    _kovalt_read "$1"
    mapfile -t COMPREPLY < <(compgen -f -- "$path")
    COMPREPLY=("${COMPREPLY[@]#"${path%"$value"}"}")
    compopt -o filenames
  fi
}

_kovalt() {
  local begun='' redirected='' value='' quote='' inside='' escape='' unclear='' lost=''
  local cword typed quoted kind start word history=${histchars:-!}
  local -a line=() after candidates
  history=${history:0:1}
  _kovalt_read "${COMP_LINE:0:COMP_POINT}"
  _kovalt_read_after
  cword=${#line[@]}
  line+=("$value" "${after[@]}")
  # With insert-completions the line editor removes the open quote.
  [[ $quote && $COMP_TYPE == 42 ]] && return

  _kovalt_ask
  if [[ $unclear && $2 == \$* ]]; then
    # The name of a variable.
    compopt -o bashdefault
  fi
  if [[ $redirected || $kind == files ]]; then
    _kovalt_files "$2"
    return
  fi
  if ((${#candidates[@]} == 1)) && [[ ${candidates[0]} == *[.=] ]]; then
    compopt -o nospace
    if [[ $quote ]]; then
      # A quote is closed after the only candidate, but not if candidates for the next step follow.
      local only=${candidates[0]}
      line[cword]=$only
      _kovalt_ask
      candidates=("$only" "${candidates[@]}")
    fi
  fi

  # The line editor replaces no more than $2, which begins after the last quote, "=" or ":". Each reply must begin with
  # that text as typed. After a command such as sudo, $2 is too long if a quote is open.
  [[ $quote ]] && typed=$inside || typed=$2
  typed=${typed%"$escape"}
  for word in "${candidates[@]}"; do
    _kovalt_quote "${word:${#value}}"
    # A candidate that begins with the open quote is left out: the line editor would merge the two.
    [[ $quote && $typed$quoted == "$quote"* ]] || COMPREPLY+=("$typed$quoted")
  done
  if ((${#COMPREPLY[@]} == 1 || COMP_TYPE == 37)); then
    # The candidate is inserted, or with menu-complete each in turn. The line editor does not close a quote after a name
    # that ends in one.
    COMPREPLY=("${COMPREPLY[@]/%/"$quote"}")
  elif ((${#COMPREPLY[@]})); then
    # Several candidates: the line editor inserts their common prefix.
    start=${COMPREPLY[0]}
    for word in "${COMPREPLY[@]}"; do
      while [[ $word != "$start"* ]]; do start=${start%?}; done
    done
    if [[ $quote != \' && $start =~ (^|[^\\])(\\\\)*\\$ ]]; then
      # It must not end in half an escape, so the text before that becomes a candidate, too.
      start=${start%?}
      COMPREPLY+=("$start")
    fi
    # The note is added only where the candidates are listed, so that it is never inserted.
    [[ $kind != 'words cut' || $COMP_TYPE != @(33|63|64) ]] || COMPREPLY+=("$start (the list is cut)")
  fi
} && complete -F _kovalt Kovalt kovalt kovalt-edit
