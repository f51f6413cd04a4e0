# Prints the string literals of C++ files, one a line as FILE <tab> TEXT: adjacent literals joined, \" resolved,
# comments and preprocessor lines left out. Run once for each file.
{ source = source (/^[ \t]*#/ ? "" : $0) "\n" }
END {
  for (i = 1; i <= length(source); ++i) {
    c = substr(source, i, 1)
    if (substr(source, i, 2) == "//") {
      i += index(substr(source, i), "\n") - 1
    } else if (c == "\"") {
      for (++i; (c = substr(source, i, 1)) != "\""; ++i) {
        if (c == "\\") c = substr(source, ++i, 1)
        text = text c
      }
      open = 1
    } else if (c == "'" && substr(source, i - 1, 3) !~ /[0-9]'[0-9]/) {  # not the ' in 1'000
      for (++i; (c = substr(source, i, 1)) != "'"; ++i) if (c == "\\") ++i
    } else if (c !~ /[ \t\n]/ && open) {
      print FILENAME "\t" text
      text = ""
      open = 0
    }
  }
}
