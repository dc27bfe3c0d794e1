# Reads the output of a GoogleTest program. Prints "passed failed skipped ran-to-its-end" as four numbers; what the
# failed tests printed goes to the file `failures`, at most 80 lines a test. A test in which the program died counts as
# failed. What a running test tells of other tests, of a program that it has started, is its own text, and counts for
# nothing.
{
  sub(/\r$/, "")
}

name == "" && match($0, /\[ RUN      \] /) {
  name = substr($0, RSTART + RLENGTH)
  count = 0
}

name != "" && count < 80 {
  lines[count++] = $0
}

ends_with("[       OK ] ") {
  passed++
  name = ""
}

ends_with("[  SKIPPED ] ") {
  skipped++
  name = ""
}

ends_with("[  FAILED  ] ") {
  failed++
  tell_failure()
}

# The end. The numbers that the program tells must be those that were seen.
name == "" && /^\[==========\] [0-9]+ tests? from [0-9]+ test suites? ran\./ {
  complete = $2 == passed + failed + skipped
}

name == "" && /^  YOU HAVE [0-9]+ DISABLED TEST/ {
  skipped += $3
}

END {
  if (name != "") {
    failed++
    tell_failure()
  }
  print passed + 0, failed + 0, skipped + 0, complete + 0
}

# Whether the line gives the result of the running test. What the test printed last may stand before it.
function ends_with(mark, place) {
  place = index($0, mark name)
  return name != "" && place && substr($0, place + length(mark name)) ~ /^(, where .*)? \([0-9]+ ms\)$/
}

function tell_failure(i) {
  for (i = 0; i < count; i++) print lines[i] >failures
  if (count == 80) print "..." >failures
  name = ""
}
