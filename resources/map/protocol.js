// What the program and the page say to each other: the functions that the program calls, and the
// reports through the one object that it publishes.
//
// The only script that the page waits for. The program may call long before the map is there; what
// it asks for is kept until then and done in its order.
"use strict";

const mapPage = (() => {
    // Each call makes up for those long before it, so that the newest are enough.
    const mostKept = 1000;
    const kept = [];
    let functions = null;
    let held = false;

    function perform() {
        while (functions && !held && kept.length > 0) {
            const [name, given] = kept.shift();
            try {
                functions[name](...given);
            } catch (error) {
                console.error(name, error);
            }
        }
    }

    function call(name, given) {
        kept.push([name, given]);
        if (kept.length > mostKept) {
            kept.shift();
        }
        perform();
    }

    function tell(name, argument) {
        try {
            window.controlObj[name](argument);
        } catch {
            // The page is shown without the program.
        }
    }

    return {
        call,
        /** From now on calls are performed by these functions, first those that were kept. */
        begin(performers) {
            functions = performers;
            perform();
        },
        /** Whether calls are to wait: while the map is on its way to another level. */
        hold(wait) {
            held = wait;
            perform();
        },
        /** The person has put the position there: "LATITUDE:LONGITUDE:LEVEL". */
        reportPosition(text) {
            tell("latLonJavascript", text);
        },
        /** The person has chosen this place of the track, as asked; "": has given it up. */
        reportPicked(text) {
            tell("latLonJavascript", text && `${text}:pick`);
        },
        /** The person has chosen this level, a whole number. */
        reportLevel(level) {
            tell("zoomChangeJavascript", level);
        },
    };
})();

function show_map() {
    mapPage.call("showMap", []);
}

/** movePointer(lat, lon, label) or movePointer(lat, lon, zoom, label). */
function movePointer(...given) {
    if (given.length > 3) {
        mapPage.call("movePointerTo", given.slice(0, 4));
    } else {
        mapPage.call("movePointer", given);
    }
}

function movePointerWithZoom(lat, lon, zoom, label) {
    mapPage.call("movePointerTo", [lat, lon, zoom, label]);
}

function removePointer() {
    mapPage.call("removePointer", []);
}

function addNewMarkerToMap(lat, lon, zoom) {
    mapPage.call("addDraft", [lat, lon, zoom]);
}
