// IKernel: the host's command engine, registered as module "KalKernel".
#pragma once

#include "host/IModule.h"
#include "platform/CString.h"

class IKernel : public IModule {
public:
    // Runs one line of the command language; returns 0 when it was accepted.
    virtual int ExecuteLine(const CString& line) = 0;

protected:
    ~IKernel() = default;
};
