#include "stylesheetbatch.h"

#include "internal/stylesheet.h"

StyleSheetBatch::StyleSheetBatch(QWidget *widget)
    : m_heldSheets(std::make_unique<orvane::HeldSheets>(widget))
{
}

StyleSheetBatch::~StyleSheetBatch() = default;
