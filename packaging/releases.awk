# Turns CHANGELOG.md into the releases of AppStream metainfo. A release is headed
# "## VERSION (DATE)"; a list item may go on in lines that begin with spaces. A section without a
# date is not released.
function escape(text) {
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    gsub(/>/, "\\&gt;", text)
    gsub(/`/, "", text)
    return text
}
function endItem() {
    if (item != "") printf "          <li>%s</li>\n", escape(item)
    item = ""
}
function endParagraph() {
    if (paragraph != "") printf "        <p>%s</p>\n", escape(paragraph)
    paragraph = ""
}
function endList() {
    endItem()
    if (inList) print "        </ul>"
    inList = 0
}
function endRelease() {
    endParagraph()
    endList()
    if (released) print "      </description>\n    </release>"
    released = 0
}
/^## / {
    endRelease()
    if (match($3, /^\([0-9]+-[0-9]+-[0-9]+\)$/)) {
        released = 1
        printf "    <release version=\"%s\" date=\"%s\">\n      <description>\n", $2,
            substr($3, 2, length($3) - 2)
    }
    next
}
!released { next }
/^- / {
    endParagraph()
    endItem()
    if (!inList) print "        <ul>"
    inList = 1
    item = substr($0, 3)
    next
}
/^$/ { endParagraph(); endList(); next }
{
    sub(/^ +/, "")
    if (inList) item = item " " $0
    else paragraph = paragraph (paragraph == "" ? "" : " ") $0
}
END { endRelease() }
