# fish completion for Kovalt

# The helper that knows the candidates, found from the place of this script.
set -g __kovalt_helper (status dirname)/@KOVALT_COMPLETE@

# Prints the text that each word of the line stands for. Nothing is run for it: of all expansions only the home folder
# and a variable at the start are known.
function __kovalt_expand
    for word in $argv
        set -l parts (string match --regex '^\$(\w+)(.*)$' -- $word)
        if string match --quiet --regex '^~(/|$)' -- $word
            string replace '~' $HOME -- $word
        else if set --query parts[2]; and set --query $parts[2]
            set -l name $parts[2]
            string join -- '' "$$name" $parts[3]
        else
            printf '%s\n' $word
        end
    end
end

function __kovalt_complete
    # A completion of fish sees nothing of the line after the cursor.
    set -l before (commandline --current-process --tokenize --cut-at-cursor)
    set -l token (commandline --current-token --cut-at-cursor)
    # The word at the cursor may leave a quote open.
    set -l typed (string unescape -- $token; or string unescape -- $token\"; or string unescape -- $token\')

    set -l candidates ($__kovalt_helper (count $before) (__kovalt_expand $before "$typed") 2>/dev/null)
    if test "$candidates[1]" = files
        # A command that is unknown is completed with file names.
        complete --do-complete "__kovalt_files $token"
    else
        string join \n -- $candidates[2..]
    end
end

complete --command Kovalt --command kovalt --no-files --arguments '(__kovalt_complete)'
