// IGrHitNodeInfo: a node of the host's output that a dialog can be re-opened
// from.
#pragma once

class IGrHitNodeInfo {
public:
    // Marks the node as the one being worked on (0: plain highlight).
    virtual void Highlight(int mode) = 0;

protected:
    ~IGrHitNodeInfo() = default;
};
