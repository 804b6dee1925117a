// The page's texts in the language of the program, which fills them in where the page has a place
// for them.
"use strict";

mapPage.say = (() => {
    const {content} = document.querySelector('meta[name="words"]');
    const words = new Map(Object.entries(content === "" ? {} : JSON.parse(content)));

    /** An English text in the page's language, with the values in the places of %1, %2 … */
    function say(text, ...values) {
        return (words.get(text) ?? text).replace(/%(\d)/g, (place, n) => values[n - 1] ?? place);
    }

    // What stands in the page itself.
    document.documentElement.lang = say("en-GB");
    document.title = say(document.title);
    for (const name of ["aria-label", "title", "placeholder"]) {
        for (const element of document.querySelectorAll(`[${name}]`)) {
            element.setAttribute(name, say(element.getAttribute(name)));
        }
    }
    return say;
})();
