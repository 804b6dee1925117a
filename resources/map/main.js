// Puts the page together.
"use strict";

(() => {
    const {view, pointer} = mapPage;
    // From the ground up; Leaflet's own panes follow: markers 600, tooltips 650, popups 700.
    [["labels", 250], ["tracks", 400], ["photos", 450],
     ["ghosts", 460]].forEach(([name, height]) => {
        const pane = view.map.createPane(name);
        pane.style.zIndex = height;
        pane.style.pointerEvents = "none";
    });
    mapPage.baseMap.layer.addTo(view.map);
    mapPage.tracks.layer.addTo(view.map);
    mapPage.photos.layer.addTo(view.map);
    mapPage.ghosts.layer.addTo(view.map);
    mapPage.tiles.begin();
    mapPage.hover.begin();
    mapPage.search.begin();
    mapPage.feed.begin();
    mapPage.begin({
        showMap: view.resized,
        movePointer: pointer.move,
        movePointerTo: pointer.moveWithView,
        removePointer: pointer.remove,
        addDraft: pointer.addDraft,
    });

    fetch("world.json")
        .then((answer) => answer.json())
        .then((world) => {
            mapPage.baseMap.setWorld(world);
            mapPage.labels.setCountries(world.countries);
        })
        .catch((error) => console.error("world", error));
})();
