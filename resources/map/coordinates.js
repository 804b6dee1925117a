// Reads a position that somebody has typed or copied, in the forms in which positions go around:
// "47.3825, 8.5432", "N 47° 22.950' E 8° 32.592'", "47°22'57.0"N 8°32'35.5"E", "geo:47.38,8.54?z=12".
"use strict";

mapPage.coordinates = (() => {
    const longest = 200;
    const unclear = {refused: mapPage.say("That is not clearly one position.")};
    const outside = {refused: mapPage.say("That is no place on Earth.")};

    /** The many marks and spaces in use, each as one. */
    function plain(text) {
        return text.trim().toUpperCase()
            .replace(/[\u2018\u2019\u201B\u2032\u02B9\u00B4`]/g, "'")
            .replace(/[\u201C\u201D\u201F\u2033\u02BA]|''/g, '"')
            .replace(/[\u00BA\u02DA]/g, "\u00B0")
            .replace(/[\u2010-\u2014\u2212]/g, "-")
            .replace(/\s+/g, (space) => (space.includes("\t") ? "\t" : " "));
    }

    /** The parts of a text of nothing but numbers, marks, letters of the winds and separators. */
    function partsOf(text) {
        const parts = [];
        const form = /([NSEW])|([+-]?\d+(?:\.\d+)?)|([\u00B0'"])|([,;\t/|])| /y;
        while (form.lastIndex < text.length) {
            const found = form.exec(text);
            if (!found) {
                return null;
            }
            const [, wind, number, mark, separator] = found;
            if (wind ?? number ?? mark ?? separator) {
                parts.push({wind, number, mark, separator});
            }
        }
        return parts;
    }

    const indexesOf = (parts, kind) =>
        parts.flatMap((part, index) => (part[kind] === undefined ? [] : [index]));

    /** Where the second angle begins; -1 when that is not clear. */
    function secondAngle(parts) {
        const numbers = indexesOf(parts, "number");
        const degrees = parts.flatMap((part, index) => (part.mark === "\u00B0" ? [index] : []));
        const winds = indexesOf(parts, "wind");
        if (winds.length === 2) {
            return winds[0] === 0 ? winds[1] : winds[0] + 1;
        }
        if (winds.length === 1 && winds[0] > 0 && winds[0] < parts.length - 1) {
            return winds[0] + 1;
        }
        if (degrees.length === 2) {
            return degrees[1] - 1;
        }
        return numbers.length % 2 === 0 ? numbers[numbers.length / 2] ?? -1 : -1;
    }

    function halves(parts) {
        const separators = indexesOf(parts, "separator");
        if (separators.length > 1) {
            return null;
        }
        if (separators.length === 1) {
            return [parts.slice(0, separators[0]), parts.slice(separators[0] + 1)];
        }
        const second = secondAngle(parts);
        return second > 0 ? [parts.slice(0, second), parts.slice(second)] : null;
    }

    /** Degrees, minutes and seconds as decimal degrees; null when they are none. */
    function degreesOf(numbers) {
        const sizes = numbers.map((number) => Math.abs(Number(number)));
        const wholeButLast = numbers.slice(0, -1).every((number) => !number.includes("."));
        const unsigned = numbers.slice(1).every((number) => /^\d/.test(number));
        if (!wholeButLast || !unsigned || sizes.slice(1).some((size) => size >= 60)) {
            return null;
        }
        const size = sizes.reduce((sum, part, index) => sum + part / 60 ** index, 0);
        return numbers[0].startsWith("-") ? -size : size;
    }

    /** {degrees, wind} of the parts of one angle; null when they are none. */
    function angle(parts) {
        const winds = parts.filter((part) => part.wind);
        const atEnd = parts[0]?.wind ?? parts[parts.length - 1]?.wind;
        const rest = parts.filter((part) => !part.wind);
        const shape = rest.map((part) => part.mark ?? "1").join("");
        const numbers = rest.filter((part) => part.number).map((part) => part.number);
        if (winds.length > 1 || (winds.length === 1 && !atEnd) ||
            !/^1\u00B0?(1'?(1"?)?)?$/.test(shape) || (atEnd && /^[+-]/.test(numbers[0]))) {
            return null;
        }
        const degrees = degreesOf(numbers);
        return degrees === null ? null : {degrees, wind: atEnd};
    }

    /** The position of a text whose decimal mark is the point; null when it holds none. */
    function read(text) {
        const parts = partsOf(text);
        const [first, second] = ((parts && halves(parts)) ?? []).map(angle);
        if (!first || !second) {
            return null;
        }
        const isLon = (one) => /[EW]/.test(one.wind ?? "");
        const isLat = (one) => /[NS]/.test(one.wind ?? "");
        if ((isLon(first) && isLon(second)) || (isLat(first) && isLat(second))) {
            return null;
        }
        const turned = isLon(first) || isLat(second);
        const signed = (one) => (/[SW]/.test(one.wind ?? "") ? -one.degrees : one.degrees);
        const [lat, lon] = (turned ? [second, first] : [first, second]).map(signed);
        return mapPage.positions.isPosition(lat, lon) ? {lat, lon} : outside;
    }

    function looksLikeOne(text) {
        return indexesOf(partsOf(text) ?? [], "number").length > 1;
    }

    function readAddress(text) {
        const found = /^geo:([+-]?\d+(?:\.\d+)?),([+-]?\d+(?:\.\d+)?)[^?]*(?:\?(.*))?$/i.exec(text);
        if (!found) {
            return null;
        }
        const [lat, lon] = [Number(found[1]), Number(found[2])];
        const zoom = Number(/(?:^|&)z=(\d+)/i.exec(found[3] ?? "")?.[1]);
        return mapPage.positions.isPosition(lat, lon) ? {lat, lon, zoom} : outside;
    }

    /**
     * {lat, lon} and perhaps a zoom; {refused: why} for what looks like a position and is none that
     * is clear; null for any other text.
     */
    return (given) => {
        if (typeof given !== "string" || given.length > longest) {
            return null;
        }
        if (/^\s*geo:/i.test(given)) {
            return readAddress(given.trim());
        }
        const text = plain(given);
        const asSeparator = read(text);
        if (text.includes(".") || !/\d,\d/.test(text)) {
            return asSeparator ?? (looksLikeOne(text) ? unclear : null);
        }
        // Without any point, a comma within digits may be the decimal mark or stand between two
        // numbers: "47,38" and "47,3 8" could be either.
        const asDecimal = read(text.replace(/(\d),(?=\d)/g, "$1."));
        if (asDecimal && !asSeparator) {
            return asDecimal;
        }
        return looksLikeOne(text) ? unclear : null;
    };
})();
