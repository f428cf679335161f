// IDlgBase: the shared dialog services a module creates for itself with
// CreateDlgBase. While one exists, the framework's settings and dialogs
// reach the host's preferences and services through it.
#pragma once

class IGlobal;

class IDlgBase {
public:
    virtual IGlobal* GetGlobal() = 0;
    virtual void Release() = 0;

protected:
    ~IDlgBase() = default;
};

IDlgBase* CreateDlgBase(IGlobal* global);
