// The pin: where the photo is that is shown, or, as a draft, where photos are to be put.
"use strict";

mapPage.pointer = (() => {
    const longestLabel = 200;
    const pin = '<svg viewBox="0 0 30 40" width="30" height="40" aria-hidden="true">' +
        '<path class="body" d="M15 38.5C12 31 3 24 3 15a12 12 0 0 1 24 0c0 9-9 16-12 23.5z"/>' +
        '<circle class="eye" cx="15" cy="15" r="4.5"/></svg>';

    const arrows = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1]};

    const {say, view, positions} = mapPage;
    let marker = null;
    let isDraft = false;
    let shownLabel = "";
    let draggedFrom = null; // where the pin was when the drag under way began
    let keyedFrom = null; // the same while arrow keys move it, until Enter

    function hint() {
        const count = mapPage.photos.countOfSelected();
        return count === 0 ? say("Select photos first, then add the marker")
            : count === 1 ? say("Drag the pin or click the map to place the photo")
                : say("Drag the pin or click the map to place the photos");
    }

    function remove() {
        const old = marker;
        marker = null; // first: what ends a drag in its midst is no report
        draggedFrom = null;
        keyedFrom = null;
        old?.remove();
        if (isDraft) {
            isDraft = false;
            mapPage.status.setHint("");
        }
    }

    function report() {
        const {lat, lng} = marker.getLatLng();
        mapPage.reportPosition(positions.report(lat, lng, view.map.getZoom()));
    }

    /** The pin is where it is to be: a draft becomes the pointer, if there is anything to place. */
    function place() {
        draggedFrom = null;
        keyedFrom = null;
        if (isDraft && mapPage.photos.countOfSelected() === 0) {
            return;
        }
        describe(isDraft ? "" : shownLabel, false);
        report();
    }

    function made(lat, lon) {
        const icon = L.divIcon({html: pin, className: "pin", iconSize: [30, 40],
                                iconAnchor: [15, 39]});
        const one = L.marker([lat, lon], {icon, draggable: true, autoPan: true, keyboard: true});
        const ifShown = (act) => (event) => { if (one === marker) { act(event); } };
        one.on("dragstart", ifShown(() => { draggedFrom = one.getLatLng(); }));
        one.on("dragend", ifShown(place));
        one.on("click", ifShown(() => { if (isDraft) { place(); } }));
        const element = one.addTo(view.map).getElement();
        element.addEventListener("keydown", ifShown(keyed));
        element.addEventListener("blur", ifShown(takeKeysBack));
        return one;
    }

    /** Arrow keys move the pin by ten pixels, with Shift by one; Enter leaves it there. */
    function keyed(event) {
        const step = arrows[event.key];
        if (step) {
            event.preventDefault();
            keyedFrom ??= marker.getLatLng();
            const {map} = view;
            const from = map.latLngToContainerPoint(marker.getLatLng());
            const {lat, lng} = map.containerPointToLatLng(
                from.add(L.point(step).multiplyBy(event.shiftKey ? 1 : 10)));
            marker.setLatLng([lat, lng]);
            view.bringIntoSight(lat, lng);
        } else if (event.key === "Enter" && (isDraft || keyedFrom)) {
            place();
        }
    }

    /** Whether there was anything to take back. */
    function takeKeysBack() {
        if (!keyedFrom) {
            return false;
        }
        marker.setLatLng(keyedFrom);
        keyedFrom = null;
        return true;
    }

    const isSeen = (lat, lon) => view.map.getBounds().contains([lat, view.nearestCopy(lon)]);

    /**
     * The photo that the pointer showed has no position. Where only the program has led to it, the
     * person is led back to the tracks, and is not left on empty ground.
     */
    function leave() {
        const at = marker?.getLatLng();
        const led = at && !isDraft && !view.isByPerson() && isSeen(at.lat, at.lng);
        remove();
        const {tracks, photos} = mapPage;
        const box = tracks.box() ?? photos.box();
        const seen = view.seen();
        if (led && box && !tracks.areIn(seen) &&
            !((view.isTouched() || !tracks.box()) && photos.areIn(seen))) {
            view.byProgram(() => view.fit(box));
        }
    }

    /** What the pin is: a draft, or the pointer, perhaps with a label. */
    function describe(given, draft) {
        if (isDraft !== draft) {
            mapPage.status.setHint(draft ? hint() : "");
        }
        isDraft = draft;
        shownLabel = given;
        const label = given || (draft ? "" : labelOf(mapPage.photos.nameOfSelected()));
        const element = marker.getElement();
        element.classList.toggle("draft", draft);
        element.setAttribute("role", "button");
        element.setAttribute("aria-label", draft ? say("New position") : label || say("Position"));
        if (marker.getTooltip()?.getContent().textContent === label) {
            return; // it may be open, and stays so
        }
        marker.unbindTooltip();
        if (label) {
            const text = document.createElement("span");
            text.textContent = label;
            marker.bindTooltip(text, {direction: "top", offset: [0, -38], className: "label"});
        }
    }

    function put(lat, lon, label, draft) {
        if (draggedFrom) {
            remove(); // it does not go on following the mouse
        }
        keyedFrom = null;
        const at = [lat, view.nearestCopy(lon)];
        marker = marker?.setLatLng(at) ?? made(...at);
        describe(label, draft);
    }

    /** Ends a drag in its midst; whether there was one. */
    function takeDragBack() {
        if (!draggedFrom) {
            return false;
        }
        put(draggedFrom.lat, draggedFrom.lng, shownLabel, isDraft);
        return true;
    }

    const labelOf = (label) => (typeof label === "string" ? label.slice(0, longestLabel) : "");

    // Whoever comes to the page by keyboard while a draft waits comes to the draft. The page does not
    // take the keyboard by itself; and what Tab leads to is known only after this.
    addEventListener("focus", () => setTimeout(() => {
        if (isDraft) {
            marker.getElement().classList.add("keyed");
            marker.getElement().focus({preventScroll: true});
        }
    }));

    view.map.on("moveend", () => {
        if (marker && !draggedFrom) {
            const {lat, lng} = marker.getLatLng();
            const nearest = view.nearestCopy(lng);
            if (Math.abs(nearest - lng) > 1) {
                marker.setLatLng([lat, nearest]);
            }
        }
    });

    return {
        remove: leave,
        /** The selected photo may be another one, or have another name. */
        nameAgain() {
            if (isDraft) {
                mapPage.status.setHint(hint());
            } else if (marker && !shownLabel && !draggedFrom) {
                describe("", false);
            }
        },
        /** The draft is to be there. */
        placeDraft(lat, lon) {
            put(lat, lon, "", true);
            place();
        },
        isShown: () => marker !== null,
        isDraft: () => isDraft,
        isDragged: () => draggedFrom !== null,
        /** Takes back what is being done with the pin; whether there was anything. */
        escape() {
            if (takeDragBack() || takeKeysBack()) {
                return true;
            }
            if (isDraft) {
                remove();
                return true;
            }
            return false;
        },
        /** Moves the pointer; the view only if it would be out of sight. */
        move(lat, lon, label) {
            if (!positions.isPosition(lat, lon)) {
                leave();
                return;
            }
            view.byProgram(() => view.bringIntoSight(lat, lon));
            put(lat, lon, labelOf(label), false);
        },
        /** Moves the pointer and the view. */
        moveWithView(lat, lon, level, label) {
            if (!positions.isPosition(lat, lon)) {
                leave();
                return;
            }
            view.byProgram(() => view.setView(lat, lon, view.levelFor(level)));
            put(lat, lon, labelOf(label), false);
        },
        /**
         * A draft there, at that level; in the middle of what is seen when no place is known, and
         * when a track is seen and the place is not: where the last photo was is only a guess.
         */
        addDraft(lat, lon, level) {
            const known = positions.isPosition(lat, lon) && !(lat === 0 && lon === 0 && level === 1);
            if (known && (isSeen(lat, lon) || !mapPage.tracks.areIn(view.seen()))) {
                view.byProgram(() => view.setView(lat, lon, view.levelFor(level)));
                put(lat, lon, "", true);
                return;
            }
            if (!known && !mapPage.tracks.box() && !mapPage.photos.box()) {
                view.showWorld();
            }
            const {lat: middle, lng} = view.map.getCenter();
            put(middle, lng, "", true);
        },
    };
})();
