#pragma once

#include <QObject>

#include <functional>

namespace pinmora {

class Pinmora_AppDelegate;

/// Whether long work is under way that lets nothing else begin.
class BusyState : public QObject {
    Q_OBJECT

public:
    /// The controller must have been set up, and must outlive it.
    explicit BusyState(Pinmora_AppDelegate &delegate, QObject *parent = nullptr);

    bool isLoading() const;
    /// Loading, or copying photos.
    bool isBusy() const;
    /// Calls back once the event loop is reached and nothing is under way.
    void whenIdle(std::function<void()> act);

private:
    Pinmora_AppDelegate &delegate_;
};

} // namespace pinmora
