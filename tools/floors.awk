# Finds includes that point up, and windows in logic. Reads sources, named from the root.

# The floor of a path below src/; a file may include its own floor and those below.
function floor(path) {
    if (path ~ /^platform\//) return 0
    if (path ~ /^store\/[^\/]+$/) return 10
    if (path ~ /^core\/[^\/]+$/) return 20
    if (path ~ /^ui\//) return 25
    if (path ~ /^(sections|participants)\//) return screen(path) ? 60 : 30
    if (path ~ /^declaration\/(section6|section6_rules|general_data)\./) return 30
    if (path ~ /^store\/list\/dec_lista/) return 30
    if (path ~ /^declaration\/[^\/]+$/) return 40
    if (path ~ /^printing\/[^\/]+$/) return 50
    if (path ~ /^app\//) return 80
    if (path ~ /^core\/window\//) return 70
    return 60
}

function screen(path) { return path ~ /\/(screen|ui|window|help)\// || path ~ /\/frm_[^\/]*$/ }

# Records, rules, store, texts and pages know no widget.
function logic(path) { return floor(path) <= 50 && path !~ /^ui\// }

function report(what) {
    print FILENAME ":" FNR ": " what
    bad = 1
}

FNR == 1 { own = FILENAME; sub(/^src\//, "", own) }

/^#include "/ {
    split($0, part, "\"")
    if (part[2] !~ /\//) next
    if (floor(part[2]) > floor(own)) report("points up to " part[2])
    if (logic(own) && part[2] ~ /^ui\//) report("logic knows " part[2])
}

/^#include <Q/ && logic(own) {
    header = $2
    gsub(/[<>]/, "", header)
    sub(/^.*\//, "", header)
    if (header ~ /^Q(Widget|Application|GuiApplication|Dialog|Painter|Print|MainWindow|Menu|Action)/ ||
        header ~ /^Q(Push|Tool|Radio|Abstract)?Button/ || header ~ /^Q(Line|Text|Plain)[A-Za-z]*Edit/ ||
        header ~ /^Q(CheckBox|ComboBox|Label|GroupBox|MessageBox|Frame|Scroll|Table|Tree|List)(View|Widget|Area)?$/ ||
        header ~ /^Q(Font|Pixmap|Image|Icon|Color|Brush|Pen|Cursor|Screen|KeyEvent|MouseEvent)/)
        report("a window in logic: " header)
}

END { exit bad }
