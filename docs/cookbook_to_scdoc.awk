# Makes the source of a manual page from the cookbook. The first heading is dropped, because the page has a title; the
# others become sections. Code in the text becomes bold, and links keep only their text.
BEGIN {
  print "KOVALT-COOKBOOK(7) \"Kovalt " version "\" \"Miscellaneous Information Manual\"\n"
  print "# NAME\n\nkovalt-cookbook - tasks for Kovalt, the command for each, and what it prints\n"
  print "# DESCRIPTION"
}
/^```/ { literal = !literal; print "```"; next }
literal { gsub(/\\/, "&&"); print; next }
/^# / { next }
/^## / { print toupper(substr($0, 2)); next }
/^### / { print substr($0, 2); next }
{
  while (match($0, /\[[^][]*\]\([^)]*\)/)) {
    link = substr($0, RSTART + 1, RLENGTH - 1)
    sub(/\].*/, "", link)
    $0 = substr($0, 1, RSTART - 1) link substr($0, RSTART + RLENGTH)
  }
  gsub(/[\\_*+]/, "\\\\&")
  gsub(/`/, "*")
  print
}
END { print "\n# SEE ALSO\n\n*Kovalt*(1), *flock*(1), *jq*(1), *xargs*(1)" }
