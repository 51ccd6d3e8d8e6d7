// SPDX-License-Identifier: MIT
#pragma once

#include "document/C_Money.h"

class PageCanvas;

/// While it lives, a kind of banknote is drawn without its ground, if ink is to be saved.
class InkSavingMoney {
public:
    InkSavingMoney(int iMoney, bool bSavesInk);
    ~InkSavingMoney();
    InkSavingMoney(const InkSavingMoney&) = delete;
    InkSavingMoney& operator=(const InkSavingMoney&) = delete;

    /// What tells a note from the others in place of its ground: an edge of its colour, and its value.
    void Edge(PageCanvas& page, const QRectF& note) const;

private:
    int m_money;
    C_Money m_before;
};
