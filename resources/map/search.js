// The field that finds places by name, and takes positions too.
"use strict";

mapPage.search = (() => {
    const settles = 150; // milliseconds after a letter until it is asked for
    const mostFound = 8;

    const {view} = mapPage;
    const field = document.getElementById("place");
    const list = document.getElementById("places");
    let found = [];
    let chosen = -1;
    let asked = null;
    let askLater = 0;

    function close() {
        clearTimeout(askLater);
        asked?.abort();
        found = [];
        show();
    }

    function choose(index) {
        chosen = index;
        [...list.children].forEach((item, n) =>
            item.setAttribute("aria-selected", String(n === index)));
        if (index >= 0) {
            field.setAttribute("aria-activedescendant", `place-${index}`);
            list.children[index].scrollIntoView({block: "nearest"});
        } else {
            field.removeAttribute("aria-activedescendant");
        }
    }

    function text(tag, className, content) {
        return Object.assign(document.createElement(tag), {className, textContent: content});
    }

    function itemOf({name, region, country}, index) {
        const item = text("li", "", "");
        item.id = `place-${index}`;
        item.setAttribute("role", "option");
        item.append(text("span", "name", name), " ",
                    text("span", "quiet", [region, country].filter(Boolean).join(", ")));
        // Not click: the field would lose the focus first, and the list with it.
        item.addEventListener("mousedown", (event) => {
            event.preventDefault();
            go(index);
        });
        return item;
    }

    function show() {
        list.replaceChildren(...found.map(itemOf));
        list.hidden = found.length === 0;
        field.setAttribute("aria-expanded", String(!list.hidden));
        choose(-1);
    }

    function go(index) {
        const place = found[index];
        field.value = place.name;
        close();
        mapPage.placing.go(place);
    }

    async function ask(name) {
        asked?.abort();
        asked = new AbortController();
        const {signal} = asked;
        const {lat, lng} = view.map.getCenter();
        const query = new URLSearchParams({q: name, lat, lon: mapPage.positions.wrapped(lng),
                                           limit: mostFound});
        try {
            const answer = await fetch(`search?${query}`, {signal});
            const places = answer.ok ? await answer.json() : [];
            if (signal.aborted) {
                return false; // overtaken by another letter
            }
            found = places.filter(({lat: north, lon: east}) =>
                mapPage.positions.isPosition(north, east)).slice(0, mostFound);
        } catch {
            return false;
        }
        show();
        return true;
    }

    function typed() {
        clearTimeout(askLater);
        const name = field.value.trim();
        if (name === "" || mapPage.coordinates(name)) {
            close();
            return;
        }
        askLater = setTimeout(() => ask(name), settles);
    }

    /** Goes to what is chosen, or typed as a position, or found first. */
    async function enter() {
        const typedText = field.value.trim();
        const read = mapPage.coordinates(typedText);
        if (read?.refused) {
            mapPage.status.note(read.refused);
        } else if (read) {
            close();
            mapPage.placing.go(read);
        } else if (typedText !== "") {
            clearTimeout(askLater);
            if (chosen < 0 && !(await ask(typedText))) {
                return;
            }
            if (found.length > 0) {
                go(Math.max(chosen, 0));
            } else {
                mapPage.status.note(mapPage.say("No place of that name is known."));
            }
        }
    }

    function key(event) {
        if (event.key === "Enter") {
            enter();
        } else if (event.key === "Escape") {
            if (field.value === "" && list.hidden) {
                return;
            }
            close();
            field.value = "";
            event.preventDefault();
        } else if ((event.key === "ArrowDown" || event.key === "ArrowUp") && found.length > 0) {
            const count = found.length + 1; // with none chosen
            const step = event.key === "ArrowDown" ? 1 : -1;
            choose(((chosen + 1 + step + count) % count) - 1);
            event.preventDefault();
        }
    }

    return {
        begin() {
            field.addEventListener("input", typed);
            field.addEventListener("keydown", key);
            field.addEventListener("blur", close);
        },
    };
})();
