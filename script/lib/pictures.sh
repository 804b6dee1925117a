# Sourced by script/screenshots: what is done for each picture. A function is one run of the program
# and bears the name of its picture, the first where there are two.
# shellcheck shell=bash disable=SC2034,SC2154
groups=(
    wizard-welcome wizard-clock wizard-save main-window details-dark clock-proposal true-time cameras missing
    reading preferences
)

# shift_clock FOLDER HOURS: sets the cameras' clocks to another time.
shift_clock() {
    exiftool -q -m -overwrite_original "-AllDates$2:0:0" -ext jpg "$1" || true
}

wizard-welcome() {
    start light 1
    take wizard-welcome main
}

wizard-clock() {
    start light 1 "$(outing Zugerberg)"
    keys alt+n
    keys alt+n
    keys alt+n
    take wizard-clock main
}

wizard-save() {
    start light 1 "$(outing Zugerberg)"
    keys alt+n
    keys alt+n
    keys alt+n
    click 620 432 # the clock was right
    keys ctrl+Return
    take wizard-save main
}

main-window() {
    start light 0 "$(outing Zugerberg)"
    keys ctrl+Return
    click 150 345
    click 565 247 # the map shows the whole track
    take main-window main
    take strip main 1280x64+0+718
}

details-dark() {
    start dark 0 "$(outing Zugerberg)"
    keys ctrl+Return
    click 150 300
    keys ctrl+2
    take details-dark main
}

# again FOLDER PHOTO MINUTES...: the photo once more, so many minutes later each time.
again() {
    local later
    for later in "${@:3}"; do
        cp "$1/$2.JPG" "$1/$2-$later.JPG"
        exiftool -q -m -overwrite_original "-AllDates+=0:$later:0" "$1/$2-$later.JPG"
    done
}

# A camera two hours behind, with photos at both ends of the walk: no other hour is as good.
clock-proposal() {
    local folder
    folder=$(outing Zugerberg)
    rm "$folder/IMG_0371.JPG"
    again "$folder" IMG_0412 4 9 15
    again "$folder" IMG_0418 1 3 5
    shift_clock "$folder" -=2
    start light 0 "$folder"
    take clock-proposal main 1280x120+0+0
}

true-time() {
    start light 0 "$(outing Zugerberg)"
    click 150 217 # the station with its clock
    keys ctrl+t
    take true-time sheet
}

cameras() {
    local folder
    folder=$(outing Zugerberg)
    exiftool -q -m -overwrite_original -Model='Pocket 7' "$folder"/IMG_041[46].JPG
    start light 0 "$folder"
    keys ctrl+shift+k
    take cameras sheet
}

missing() {
    local folder
    folder=$(outing Zugerberg)
    start light 0 "$folder"
    mv "$folder" "$folder - sorted"
    keys ctrl+shift+s
    keys Return
    take missing sheet
}

# A phone's log in universal time, and a camera on summer time.
reading() {
    local folder
    folder=$(outing Zugerberg)
    shift_clock "$folder" +=2
    rm "$folder/ship.nmea"
    TZ=Europe/Zurich start light 0 "$folder"
    take reading main 1280x120+0+0
}

preferences() {
    start light 0
    keys ctrl+comma
    keys Down
    take preferences sheet
}
