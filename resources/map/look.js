// The colours of the desktop's look, for the style sheet and for what is drawn.
"use strict";

mapPage.look = (() => {
    const roles = ["window", "text", "quiet", "lines", "accent", "track"];
    const land = {
        light: {land: "#f3f0e7", water: "#bcd9e7", border: "#cbbfa8", grid: "#8a8f9426",
                name: "#6b7178", nameGround: "#f3f0e7b0", warning: "#b45309"},
        dark: {land: "#2d3033", water: "#21404f", border: "#555b62", grid: "#c0c8d01c",
               name: "#a0a8b0", nameGround: "#2d3033b0", warning: "#f0b25a"},
    };
    const listeners = [];
    const colours = {};

    function read() {
        const style = getComputedStyle(document.documentElement);
        for (const role of roles) {
            colours[role] = style.getPropertyValue(`--${role}`).trim();
        }
        const dark = document.documentElement.classList.contains("dark");
        Object.assign(colours, dark ? land.dark : land.light);
    }

    /** {dark, ROLE: "#rrggbb", ...}; what is missing or no colour stays as the style sheet has it. */
    function set(look) {
        const root = document.documentElement;
        root.classList.toggle("dark", look.dark === true);
        for (const role of roles) {
            if (/^#[0-9a-f]{6}$/i.test(look[role])) {
                root.style.setProperty(`--${role}`, look[role]);
            } else {
                root.style.removeProperty(`--${role}`);
            }
        }
        read();
        root.style.setProperty("--accent-ground", `${colours.accent}2e`);
        root.style.setProperty("--veil", `${colours.window}e6`);
        listeners.forEach((listener) => listener());
    }

    set({dark: matchMedia("(prefers-color-scheme: dark)").matches});
    return {colours, set, changed: (listener) => listeners.push(listener)};
})();
