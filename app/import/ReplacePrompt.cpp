// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReplacePrompt.h"

#include "GltfFiles.h"
#include "ImportedFiles.h"
#include "StaticMeshExport.h"

#include <QCheckBox>
#include <QDir>
#include <QPushButton>

namespace {
constexpr int MostShown = 10; ///< files in the text; the details have all

/// The first few, one a line, and how many more there are.
QString shortList(const QStringList &lines, int most)
{
    return lines.size() <= most ? lines.join(QLatin1Char('\n'))
                                : ReplacePrompt::tr("%1\n… and %2 more")
                                      .arg(QStringList(lines.mid(0, most)).join(QLatin1Char('\n')),
                                           QString::number(lines.size() - most));
}
} // namespace

ReplacePrompt::ReplacePrompt(const QString &title, const QStringList &files, QWidget *parent)
    : QMessageBox(Question, title, QString(), Yes | No, parent)
    , m_freeNames(addButton(tr("Use &Free Names"), ActionRole))
{
    QStringList shown;
    for (const QString &file : files)
        shown += QDir::toNativeSeparators(QDir::cleanPath(file));
    setTextFormat(Qt::PlainText);
    setText(tr("These files exist already. Replace them?\n\n%1").arg(shortList(shown, MostShown)));
    if (shown.size() > MostShown)
        setDetailedText(shown.join(QLatin1Char('\n')));
    setDefaultButton(No);
    setEscapeButton(No);
    m_freeNames->setToolTip(tr("Leaves these files alone and puts a number to the new names: steel_2.png"));
}

/// Offers to keep these materials of a file that is replaced; without any nothing is offered.
void ReplacePrompt::offerToKeep(const QStringList &materials)
{
    if (materials.isEmpty())
        return;
    auto *box =
        new QCheckBox(tr("&Keep the other materials of the .kmat file (%1)").arg(materials.size()), this);
    box->setToolTip(
        shortList(materials, MostShown).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
    box->setChecked(true);
    setCheckBox(box);
}

bool ReplacePrompt::keepsMaterials() const
{
    return checkBox() && checkBox()->isChecked();
}

ReplacePrompt::Answer ReplacePrompt::ask()
{
    const int pressed = exec();
    if (clickedButton() == m_freeNames)
        return UseFreeNames;
    return pressed == Yes ? Replace : Nothing;
}

bool ReplacePrompt::settle(ImportedFiles &files, const QString &title, QWidget *parent)
{
    const QStringList replaced = files.replaced();
    if (replaced.isEmpty())
        return true;
    ReplacePrompt prompt(title, replaced, parent);
    prompt.offerToKeep(files.otherMaterials());
    const Answer answer = prompt.ask();
    if (answer == UseFreeNames)
        files.useFreeNames();
    else if (prompt.keepsMaterials())
        files.keepOtherMaterials();
    return answer != Nothing;
}

template <typename Files>
bool ReplacePrompt::settleNames(Files &files, const QString &title, QWidget *parent)
{
    const QStringList replaced = files.replaced();
    if (replaced.isEmpty())
        return true;
    const Answer answer = ReplacePrompt(title, replaced, parent).ask();
    if (answer == UseFreeNames)
        files.useFreeNames();
    return answer != Nothing;
}

bool ReplacePrompt::settle(ExportedFiles &files, const QString &title, QWidget *parent)
{
    return settleNames(files, title, parent);
}

bool ReplacePrompt::settle(GltfFiles &files, const QString &title, QWidget *parent)
{
    return settleNames(files, title, parent);
}
