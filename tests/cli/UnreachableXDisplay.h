#pragma once

#include <QString>
#include <atomic>
#include <thread>

// An X display that nothing answers: a test sets DISPLAY to name() and afterwards asks how
// many times a program tried to reach it. X clients (libxcb, and Xlib through it) first try
// the abstract socket "/tmp/.X11-unix/X<number>"; this object listens there and closes every
// connection at once, so a client that tries fails quickly instead of waiting for a reply, and
// the attempt is counted. Taking an abstract socket needs no file and no permission.
class UnreachableXDisplay
{
public:
    // Takes the first free display number from 99999 downwards.
    UnreachableXDisplay();
    ~UnreachableXDisplay();
    UnreachableXDisplay(const UnreachableXDisplay&) = delete;
    UnreachableXDisplay& operator=(const UnreachableXDisplay&) = delete;

    // False when no display number could be taken; name() and attempts() mean nothing then.
    bool listening() const { return listener >= 0; }
    // ":<number>", for DISPLAY.
    QString name() const;
    int attempts() const { return connections.load(); }

private:
    void turnAwayConnections();

    int listener = -1;
    int number = 0;
    std::atomic<int> connections{0};
    std::atomic<bool> stopping{false};
    std::thread watcher;
};
