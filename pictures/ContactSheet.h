// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

/// Small pictures in rows, each with its name below it. Where one sheet would be too large there are several.
class ContactSheet
{
public:
    static constexpr int LongestSide = 16384; ///< of a sheet, pixels

    /// For so many pictures of this size. `columns` of 0 makes the sheet about as wide as it is high.
    ContactSheet(int pictures, const QSize &size, const QColor &background, int columns);

    /// Whether so many columns have room on a sheet.
    static bool hasRoom(int columns, const QSize &size) { return columns * cellWidth(size) <= LongestSide; }

    int sheets() const;
    /// The last of those on the sheet that begins with this one, or of all.
    int lastBeside(int picture) const;
    /// The sheet that a picture stands on, from 0.
    int sheetOf(int picture) const { return picture / perSheet(); }

    /// Puts a picture on its sheet, which is the only one in memory; where the picture is null, its name
    /// alone. The first of a sheet begins that.
    void put(int picture, const QImage &image, const QString &name);
    const QImage &sheet() const { return m_sheet; }

private:
    static constexpr int Gap = 8; ///< around pictures and names, pixels
    static int cellWidth(const QSize &size) { return size.width() + 2 * Gap; }
    int perSheet() const { return m_columns * m_rows; }
    void begin(int pictures);

    int m_pictures;
    QSize m_size;
    QSize m_cell;
    QColor m_background;
    int m_columns;
    int m_rows; ///< of a full sheet
    QImage m_sheet;
};
