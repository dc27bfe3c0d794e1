# Reads the output of a GoogleTest program. Prints "passed failed skipped ran-to-its-end" as four numbers; what the
# failed tests printed goes to the file `failures`, at most 80 lines a test. A test in which the program died counts as
# failed.
{
  sub(/\r$/, "")
}

/^\[ RUN      \] / {
  name = substr($0, 14)
  count = 0
}

name != "" && count < 80 {
  lines[count++] = $0
}

/\[       OK \] .* \([0-9]+ ms\)$/ {
  passed++
  name = ""
}

/\[  SKIPPED \] .* \([0-9]+ ms\)$/ {
  skipped++
  name = ""
}

/\[  FAILED  \] .* \([0-9]+ ms\)$/ {
  failed++
  tell_failure()
}

# The end. The numbers that the program tells must be those that were seen.
/^\[==========\] [0-9]+ tests? from [0-9]+ test suites? ran\./ {
  complete = $2 == passed + failed + skipped
}

/^  YOU HAVE [0-9]+ DISABLED TEST/ {
  skipped += $3
}

END {
  if (name != "") {
    failed++
    tell_failure()
  }
  print passed + 0, failed + 0, skipped + 0, complete + 0
}

function tell_failure(i) {
  for (i = 0; i < count; i++) print lines[i] >failures
  if (count == 80) print "..." >failures
  name = ""
}
