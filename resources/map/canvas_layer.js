// A layer that is one canvas over the view and a bit around it, painted anew when the view has
// moved: for what consists of more pieces than a page can have elements.
"use strict";

mapPage.CanvasLayer = L.Layer.extend({
    /** What is painted on each side beyond the view, as a part of it: seen while it is dragged. */
    margin: 0.2,

    /**
     * paint(context, view) gets the pixels of the whole world, from its north-west corner at the
     * level that is shown: view.left, top, width, height, of which the context's first is left, top;
     * view.level: that level;
     * view.scale: pixels in a unit of the world's map; view.copies: which copies of the world are
     * seen, as numbers of widths to the east.
     */
    initialize(paint, options) {
        L.setOptions(this, options);
        this.paint = paint;
    },

    onAdd(map) {
        this.canvas = L.DomUtil.create("canvas", "leaflet-zoom-animated", this.getPane());
        this.canvas.style.pointerEvents = "none";
        this.frame = 0;
        this.zoom = map.getZoom();
        this.redraw();
    },

    onRemove() {
        cancelAnimationFrame(this.frame);
        this.frame = 0;
        this.canvas.remove();
    },

    getEvents() {
        return {moveend: this.redraw, resize: this.redraw, move: this.follow,
                zoomanim: this.animate};
    },

    /** Before the next time that the screen is shown, once for all that ask for it until then. */
    redraw() {
        if (this._map && !this.frame) {
            this.frame = requestAnimationFrame(() => {
                this.frame = 0;
                this.paintView();
            });
        }
    },

    paintView() {
        const map = this._map;
        const size = map.getSize();
        const around = size.multiplyBy(this.margin).round();
        const corner = map.containerPointToLayerPoint(around.multiplyBy(-1)).round();
        const origin = corner.add(map.getPixelOrigin());
        this.zoom = map.getZoom();
        this.corner = map.unproject(origin, this.zoom);
        this.around = around;
        const width = size.x + 2 * around.x;
        const height = size.y + 2 * around.y;
        const context = this.prepared(width, height);
        L.DomUtil.setTransform(this.canvas, corner, 1);
        const scale = 2 ** this.zoom;
        const world = mapPage.worldSize * scale;
        const copies = [];
        for (let copy = Math.floor(origin.x / world); copy * world < origin.x + width; ++copy) {
            copies.push(copy);
        }
        this.paint(context, {left: origin.x, top: origin.y, width, height, scale, copies,
                             level: this.zoom});
    },

    /** The canvas, empty, in the screen's own pixels. */
    prepared(width, height) {
        const dense = window.devicePixelRatio || 1;
        const [across, down] = [Math.round(width * dense), Math.round(height * dense)];
        if (this.canvas.width !== across || this.canvas.height !== down) {
            this.canvas.width = across;
            this.canvas.height = down;
            this.canvas.style.width = `${width}px`;
            this.canvas.style.height = `${height}px`;
        }
        const context = this.canvas.getContext("2d");
        context.setTransform(1, 0, 0, 1, 0, 0);
        context.clearRect(0, 0, across, down);
        context.setTransform(dense, 0, 0, dense, 0, 0);
        return context;
    },

    /** While the view is dragged beyond what is painted. */
    follow() {
        if (!this.corner || this._map.getZoom() !== this.zoom) {
            return;
        }
        const at = this._map.latLngToContainerPoint(this.corner);
        if (Math.abs(at.x + this.around.x) > this.around.x ||
            Math.abs(at.y + this.around.y) > this.around.y) {
            this.redraw();
        }
    },

    /** Goes along with the map on its way to another level. */
    animate({center, zoom}) {
        if (!this.corner) {
            return;
        }
        const map = this._map;
        const half = map.getSize().divideBy(2);
        const shift = L.DomUtil.getPosition(map.getPane("mapPane"));
        const origin = map.project(center, zoom).subtract(half).add(shift).round();
        const at = map.project(this.corner, zoom).subtract(origin);
        L.DomUtil.setTransform(this.canvas, at, map.getZoomScale(zoom, this.zoom));
    },
});
