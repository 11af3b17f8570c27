// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AboutDialog.h"

#include "Sound.h"
#include "WebLink.h"
#include "ui_AboutDialog.h"

#include <QApplication>
#include <QIcon>
#include <QShowEvent>

namespace {
struct BuiltIn
{
    const char *name;
    const char *home; ///< none for ourselves
    const char *licence;
};

const BuiltIn builtIn[] = {
    {"Korvane", "", QT_TRANSLATE_NOOP("AboutDialog", "MIT")},
    {"Qt %1", "https://www.qt.io", QT_TRANSLATE_NOOP("AboutDialog", "LGPL version 3")},
    {"Assimp", "https://www.assimp.org", QT_TRANSLATE_NOOP("AboutDialog", "BSD, 3 clauses")},
    {"stb_image", "https://github.com/nothings/stb",
     QT_TRANSLATE_NOOP("AboutDialog", "MIT or public domain")},
    {"Lucide", "https://lucide.dev", QT_TRANSLATE_NOOP("AboutDialog", "ISC, some icons MIT")}};

QString licenceTable()
{
    const auto translated = [](const char *text) { return QCoreApplication::translate("AboutDialog", text); };
    const auto cell = [](const QString &text) {
        return QStringLiteral("<td style=\"padding-right: 24px\">%1</td>").arg(text);
    };
    QString rows;
    for (const BuiltIn &part : builtIn) {
        QString name = QString::fromLatin1(part.name).replace(QLatin1String("%1"), QLatin1String(qVersion()));
        if (*part.home)
            name = QStringLiteral("<a href=\"%1\">%2</a>").arg(QLatin1String(part.home), name);
        rows += QStringLiteral("<tr>%1%2</tr>").arg(cell(name), cell(translated(part.licence)));
    }
    return QStringLiteral("<p><b>%1</b></p><table>%2</table>")
        .arg(translated(QT_TRANSLATE_NOOP("AboutDialog", "Licenses of what is built in")), rows);
}
} // namespace

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::AboutDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->lblIcon->setPixmap(QIcon(QStringLiteral(":/Images/Icons/korvane-64.png")).pixmap(64, 64));
    m_ui->lblVersion->setText(tr("Korvane v%1").arg(QCoreApplication::applicationVersion()));
    QFont font = m_ui->lblVersion->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    m_ui->lblVersion->setFont(font);
    m_ui->lblLicences->setText(licenceTable());
    connect(m_ui->lblLicences, &QLabel::linkActivated, this,
            [this](const QString &link) { openWebLink(link, this); });
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        playSound(QStringLiteral(":/sounds/test.wav"), this);
}

void AboutDialog::on_btnAboutQt_clicked()
{
    QApplication::aboutQt();
}
