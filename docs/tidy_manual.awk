# Fixes what linters and readers dislike in the output of scdoc: paragraph breaks next to headings and at the end of a
# block, list items whose first line is one column off, characters that a terminal does not show as typed, and lines
# longer than 80 bytes.
/^\.TH/ { print; print ".nh"; after_heading = 1; next } # A page starts with hyphenation on.
/^\.P$/ { break_wanted = !after_heading; next }
break_wanted && !/^\.(RE|SH|SS)/ { print ".P"; break_wanted = 0 }
/^\.(SH|SS)/ { break_wanted = 0; gsub(/"/, "\\(dq") }
{ after_heading = /^\.(TH|SH|SS)/ }
/^\.nf$/ { literal = 1 }
/^\.fi$/ { literal = 0 }
/^\\h'-04'[0-9]\./ { sub(/\+03/, "+02") }
literal && !/^\./ { gsub(/-/, "\\-"); gsub(/(\\&)?'/, "\\(aq"); gsub(/`/, "\\(ga") }
!/^\./ { gsub(/\^/, "\\(ha"); gsub(/~/, "\\(ti") }
!/^\./ { gsub(/--/, "\\-\\-"); gsub(/\\fB-/, "\\fB\\-"); gsub(/ - /, " \\- ") }
!literal && !/^\./ {
  while (length($0) > 80 && match(substr($0, 1, 81), /.* /)) {
    print substr($0, 1, RLENGTH - 1)
    $0 = substr($0, RLENGTH + 1)
    if (/^[.']/) $0 = "\\&" $0
  }
}
{ print }
