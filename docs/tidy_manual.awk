# Mends what scdoc leaves in a page and the linters of pages object to, or a reader stumbles over: paragraph breaks
# beside headings and at the end of a block, and hyphens that a terminal does not show as typed.
/^\.TH/ { print; print ".nh"; after_heading = 1; next } # A page starts with hyphenation on.
/^\.P$/ { break_wanted = !after_heading; next }
break_wanted && !/^\.(RE|SH|SS)/ { print ".P"; break_wanted = 0 }
/^\.(SH|SS)/ { break_wanted = 0 }
{ after_heading = /^\.(TH|SH|SS)/ }
/^\.nf$/ { literal = 1 }
/^\.fi$/ { literal = 0 }
literal && !/^\./ { gsub(/-/, "\\-") }
!/^\./ { gsub(/--/, "\\-\\-"); gsub(/\\fB-/, "\\fB\\-"); gsub(/ - /, " \\- ") }
{ print }
