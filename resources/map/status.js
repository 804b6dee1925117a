// The quiet lines: which map is shown, whom it is from, and what there is to say now and then.
"use strict";

mapPage.status = (() => {
    const noteLasts = 6000;
    const source = document.getElementById("source");
    const credits = document.getElementById("credits");
    const noteLine = document.getElementById("note");
    let hint = "";
    let noteEnds = 0;

    function showNote(text) {
        noteLine.textContent = text;
        noteLine.hidden = text === "";
    }

    function element(tag, text, attributes) {
        return Object.assign(document.createElement(tag), {textContent: text}, attributes);
    }

    return {
        /** Which map is shown, and what a click on the words after it does, if anything. */
        setSource(text, tryAgain) {
            source.replaceChildren(text);
            if (tryAgain) {
                source.append(" ", element("button", mapPage.say("Try again"),
                                           {type: "button", onclick: tryAgain}));
            }
        },
        /** Whose map it is, with an address where more is told about that. */
        setCredits(text, address) {
            const known = {href: address, target: "_blank", rel: "noreferrer"};
            credits.replaceChildren(address ? element("a", text, known) : text);
        },
        /** Something to know now; it goes by itself. */
        note(text) {
            clearTimeout(noteEnds);
            noteEnds = setTimeout(() => showNote(hint), noteLasts);
            showNote(text);
        },
        /** What can be done, for as long as it can be; "" for nothing. */
        setHint(text) {
            clearTimeout(noteEnds);
            hint = text;
            showNote(hint);
        },
    };
})();
