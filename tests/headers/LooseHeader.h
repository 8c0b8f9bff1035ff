#pragma once

#include "app/MainWnd.h"
#include "headers/HeaderController.h"

/// A header outside the controller's list. It takes itself back when it was made the active one.
class LooseHeader : public HeaderItem
{
public:
    explicit LooseHeader(const header_data& data, header_type headerType = header_c_sharp)
        : HeaderItem(nullptr, headerType, data)
    {
    }
    ~LooseHeader() override
    {
        if (mainWnd && mainWnd->headerController && mainWnd->headerController->activeHeader == this)
            mainWnd->headerController->activeHeader = nullptr;
    }
};
