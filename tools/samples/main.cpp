// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Makes the sample game folder and mod folder that the program can be tried with.
#include "Samples.h"

#include <QFile>
#include <QTextStream>

int main(int argc, char **argv)
{
    if (argc != 2) {
        QTextStream(stderr) << "usage: korvane-make-samples FOLDER\n";
        return 2;
    }
    const QString error = makeSamples(QFile::decodeName(argv[1]));
    if (!error.isEmpty())
        QTextStream(stderr) << error << '\n';
    return error.isEmpty() ? 0 : 1;
}
