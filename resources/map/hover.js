// What the mouse says when it is over something that is drawn: a photo's name, and its own shape.
"use strict";

mapPage.hover = (() => {
    const reach = 8; // pixels
    const longest = 80; // letters
    const {map} = mapPage.view;
    const tip = L.tooltip({direction: "top", offset: [0, -6], className: "label"});
    let frame = 0;

    function namesOf(photos) {
        const [first, second] = photos.map(({name}) => name.slice(0, longest));
        if (photos.length > 2) {
            return mapPage.say("%1 and %2 more", first, photos.length - 1);
        }
        return photos.length === 2 ? `${first}, ${second}` : first;
    }

    /** The names of the photos there; the pin has a label of its own. */
    function showNames({lat, lng}, target) {
        const photos = target?.closest?.(".pin") || mapPage.pointer.isDragged() ? []
            : mapPage.photos.near(lat, lng, reach / 2 ** map.getZoom());
        if (photos.length === 0) {
            tip.remove();
            return;
        }
        const text = document.createElement("span");
        text.textContent = namesOf(photos);
        const [{lat: north, lon}] = photos;
        tip.setContent(text).setLatLng([north, mapPage.view.nearestCopy(lon)]).addTo(map);
    }

    function leave() {
        cancelAnimationFrame(frame);
        tip.remove();
    }

    return {
        begin() {
            map.on("mousemove", ({latlng, originalEvent}) => {
                cancelAnimationFrame(frame);
                frame = requestAnimationFrame(() => {
                    mapPage.placing.showCursor(latlng);
                    showNames(latlng, originalEvent.target);
                });
            });
            map.on("mouseout zoomstart dragstart", leave);
        },
        /** What is drawn has changed. */
        leave,
    };
})();
