// Conversions between the model's texts and cursors and Qt's.
#pragma once

#include "platform/CString.h"
#include "platform/Cursor.h"

#include <QString>
#include <Qt>

namespace kalhost::qt {

inline QString ToQt(const CString& text)
{
    return QString::fromUtf16(text.Str().data(), static_cast<qsizetype>(text.Str().size()));
}

inline CString FromQt(const QString& text)
{
    return CString(
        std::u16string(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())));
}

// A caption shown where '&' marks no mnemonic: "&&" becomes '&', a single
// '&' goes.
inline QString WithoutMnemonic(const QString& caption)
{
    QString plain;
    plain.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&') {
            if (i + 1 < caption.size() && caption[i + 1] == u'&')
                plain += u'&';
            ++i;
            if (i < caption.size() && caption[i] != u'&')
                plain += caption[i];
            continue;
        }
        plain += caption[i];
    }
    return plain;
}

// The mouse cursor shown for each drag feedback of the model.
inline Qt::CursorShape ToQtCursor(CursorShape shape)
{
    switch (shape) {
    case CursorShape::Drop: return Qt::DragCopyCursor;
    case CursorShape::NoDrop: return Qt::ForbiddenCursor;
    case CursorShape::Remove: return Qt::DragMoveCursor;
    case CursorShape::Arrow: break;
    }
    return Qt::ArrowCursor;
}

} // namespace kalhost::qt
