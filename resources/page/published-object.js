// The object by which scripts of the map page reach the program. It stands in the page's own world
// before any script of the page runs, and only in the page that the program has asked for. What is
// used later is kept here: a page can replace anything that it can reach. Calls go as an event to
// channel.js, which lives in a world of its own.
(function (origin, name, longest) {
    "use strict";
    if (window.location.origin !== origin) {
        return;
    }
    const CustomEvent = window.CustomEvent;
    const dispatch = window.EventTarget.prototype.dispatchEvent.bind(window.document);

    // A method is no constructor and has no prototype that would lead anywhere.
    function callOf(called) {
        const holder = {
            [called](argument) {
                const type = typeof argument;
                if (type === "number" || (type === "string" && argument.length <= longest)) {
                    const detail = type + " " + called + " " + argument;
                    dispatch(new CustomEvent("pinmora-call", { __proto__: null, detail }));
                }
            }
        };
        return Object.freeze(holder[called]);
    }

    const published = { __proto__: null };
    for (const called of ["latLonJavascript", "zoomChangeJavascript", "newMarker"]) {
        published[called] = callOf(called);
    }
    Object.defineProperty(window, name, { value: Object.freeze(published), enumerable: true });
})
