// Positions in degrees, north and east positive, and as the drawings use them: on the world's map
// of 256 x 256 units (web Mercator), x from west to east, y from north to south.
"use strict";

mapPage.worldSize = 256;

mapPage.positions = (() => {
    /** Beyond it the map has nothing: web Mercator makes the world a square. */
    const northernmost = 85.0511287798;

    function isPosition(lat, lon) {
        return Number.isFinite(lat) && Number.isFinite(lon) && Math.abs(lat) <= 90 &&
            Math.abs(lon) <= 180;
    }

    /** The same meridian between -180 and 180. */
    function wrapped(lon) {
        return Math.abs(lon) <= 180 ? lon : ((((lon + 180) % 360) + 360) % 360) - 180;
    }

    function decimals(degrees, digits) {
        const text = degrees.toFixed(digits);
        return Number(text) === 0 ? (0).toFixed(digits) : text;
    }

    return {
        isPosition,
        wrapped,
        /** Which copies of the world a box shows, as numbers of widths to the east. */
        copiesIn([west, , east]) {
            const first = Math.floor(west / mapPage.worldSize);
            const last = Math.floor(east / mapPage.worldSize);
            return Array.from({length: last - first + 1}, (_, i) => first + i);
        },
        x: (lon) => (lon + 180) * (mapPage.worldSize / 360),
        y(lat) {
            const clamped = Math.max(-northernmost, Math.min(northernmost, lat));
            const sine = Math.sin(clamped * (Math.PI / 180));
            return mapPage.worldSize * (0.5 - Math.log((1 + sine) / (1 - sine)) / (4 * Math.PI));
        },
        latAt: (y) => (Math.atan(Math.sinh(Math.PI * (1 - (2 * y) / mapPage.worldSize))) * 180) /
            Math.PI,
        /** As the program is told it; six decimals are 11 cm. */
        report: (lat, lon, level) => `${decimals(Math.max(-90, Math.min(90, lat)), 6)}:` +
            `${decimals(wrapped(lon), 6)}:${Math.round(level)}`,
        /** For people; five decimals are 1 m. */
        shown: (lat, lon) => `${decimals(lat, 5)}, ${decimals(wrapped(lon), 5)}`,
    };
})();
