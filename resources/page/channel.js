// Between the map page and the program, in a world that the page's scripts cannot see: it holds the
// channel to the program. What the page calls goes there together at the end of each of its tasks,
// and waits until the channel is up; what the page is to draw becomes an event of its document.
(function (origin, longest) {
    "use strict";
    if (window.location.origin !== origin) {
        return;
    }
    const mostWaiting = 20000;
    const dispatch = window.EventTarget.prototype.dispatchEvent.bind(window.document);
    let calls = null;
    let waiting = [];

    function send() {
        if (calls && waiting.length > 0) {
            calls.take(waiting);
            waiting = [];
        }
    }

    document.addEventListener("pinmora-call", (event) => {
        const message = event.detail; // anybody in the page may have sent it
        if (typeof message !== "string" || message.length > longest ||
            waiting.length === mostWaiting) {
            return;
        }
        waiting.push(message);
        if (calls && waiting.length === 1) {
            queueMicrotask(send);
        }
    });

    function connect() {
        if (typeof qt === "undefined") { // the engine has not got round to it yet
            setTimeout(connect, 10);
            return;
        }
        new QWebChannel(qt.webChannelTransport, (channel) => {
            channel.objects.drawing.fed.connect((json) => {
                dispatch(new CustomEvent("pinmora-feed", { detail: json }));
            });
            calls = channel.objects.calls;
            calls.begin();
            send();
        });
    }

    connect();
})
