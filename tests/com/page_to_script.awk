# Turns a server page into the script that the page server makes of it: text becomes writing, code stays. What must
# stand in front of everything else stands there already.
BEGIN { RS = "\001" }

function write_text(text,   lines, count, i) {
  count = split(text, lines, "\n")
  for (i = 1; i <= count; i++) {
    gsub(/"/, "\"\"", lines[i])
    print "Response.Write \"" lines[i] "\"" (i < count ? " & vbCrLf" : "")
  }
}

{
  page = $0
  while ((start = index(page, "<%")) > 0) {
    write_text(substr(page, 1, start - 1))
    page = substr(page, start + 2)
    end = index(page, "%>")
    code = substr(page, 1, end - 1)
    page = substr(page, end + 2)
    sub(/Option Explicit/, "", code)
    if (code ~ /^=/) print "Response.Write " substr(code, 2)
    else if (code !~ /^@/) print code
  }
  write_text(page)
}
