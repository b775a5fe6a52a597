# fish completion for Kovalt

# The helper prints the candidates. Its path is relative to this script.
set -g __kovalt_helper (status dirname)/@KOVALT_COMPLETE@

# Prints a word of the line after expansion. $raw is the word as typed, $word the same without quotes. Runs nothing: it
# expands only a home folder or a variable at the start.
function __kovalt_expand --argument-names raw word
    set -l parts (string match --regex '^\$(\w+)(.*)$' -- $word)
    set -l home (string match --regex '^~(?:[a-zA-Z_][a-zA-Z_0-9.-]*)?(?=/|$)' -- $raw)
    if set --query home[1]
        # Evaluates nothing but a user name. If there is no such user, the word is unchanged.
        set -l folder
        eval "set folder $home"
        string replace -- $home "$folder" $word
    else if set --query parts[2]; and set --query $parts[2]
        set -l name $parts[2]
        string join -- '' "$$name" $parts[3]
    else
        printf '%s\n' $word
    end
end

function __kovalt_complete
    # fish passes only the line before the cursor to a completion.
    set -l before (commandline --current-process --tokenize --cut-at-cursor)
    set -l token (commandline --current-token --cut-at-cursor)
    # The word at the cursor may leave a quote open.
    set -l typed (string unescape -- $token; or string unescape -- $token\"; or string unescape -- $token\')

    # The words as typed, only to distinguish a quoted "~" from a home folder.
    set -l raws (string match --all --regex -- \
        '(?:[^\s\'"\\\\]|\\\\(?:.|$)|\'(?:[^\'\\\\]|\\\\.)*(?:\'|$)|"(?:[^"\\\\]|\\\\.)*(?:"|$))+' \
        (commandline --current-process --cut-at-cursor))
    if test (count $raws) -lt (count $before) -o (count $raws) -gt (math (count $before) + 1)
        set raws $before
    end
    set -l line
    for i in (seq (count $before))
        set --append line (__kovalt_expand "$raws[$i]" "$before[$i]" | string collect --allow-empty)
    end
    set --append line (__kovalt_expand "$token" "$typed" | string collect --allow-empty)

    set -l candidates ($__kovalt_helper (count $before) $line 2>/dev/null)
    # The names in a file are untrusted: fish must not run or expand one. fish escapes what it inserts, except
    # a "~" at the start of a word, so there names that begin with "~" are left out.
    if test -z "$token"
        set candidates (string match --invert -- '~*' $candidates)
    end
    if test "$candidates[1]" = files
        # fish completes an unknown command with file names.
        complete --do-complete "__kovalt_files $token"
    else if test "$candidates[1]" = 'words cut'
        string join \n -- $candidates[2..]\t'the list is cut'
    else
        string join \n -- $candidates[2..]
    end
end

complete --command Kovalt --command kovalt --command kovalt-edit --no-files --arguments '(__kovalt_complete)'
