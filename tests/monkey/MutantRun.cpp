// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MutantRun.h"

#include "DocumentFiles.h"
#include "DocumentLoader.h"
#include "Hands.h"
#include "Journal.h"
#include "KVTreeView.h"
#include "LiteralFormat.h"
#include "MainWindow.h"
#include "Playground.h"
#include "TestSupport.h"

#include <algorithm>

MutantRun::MutantRun(Playground &playground, Journal &journal, quint64 seed)
    : m_playground(playground)
    , m_journal(journal)
    , m_generator(seed)
{}

MutantRun::~MutantRun() = default;

void MutantRun::run(int files, int seconds)
{
    m_playground.storeSettings();
    m_window = std::make_unique<MainWindow>();
    m_window->resize(1100, 750);
    m_window->show();
    m_window->activateWindow();
    QTimer asked;
    connect(&asked, &QTimer::timeout, this, &MutantRun::decline);
    asked.start(20);
    wait(300); // the program asks for its folders soon
    const QDeadlineTimer end =
        seconds > 0 ? QDeadlineTimer(qint64(seconds) * 1000) : QDeadlineTimer(QDeadlineTimer::Forever);
    while (m_files < files && !end.hasExpired()) {
        Dice dice(m_generator());
        use(dice);
    }
    m_window.reset();
}

void MutantRun::use(Dice &dice)
{
    const QString path = m_playground.mutant(++m_files, dice);
    const QByteArray bytes = TestSupport::readFile(path);
    m_journal.step(m_files, QStringLiteral("open %1").arg(m_playground.shortName(path)));
    m_window->openFiles({path});
    settle();
    const auto isOpen = [&](const DocumentKind &kind) {
        return m_window->findChild<DocumentFiles *>()->document(kind.type)->path() == path;
    };
    const LiteralFormat literal(QFileInfo(path).suffix(), bytes);
    const bool opened = std::any_of(documentKinds().begin(), documentKinds().end(), isOpen);
    if (opened == literal.failed())
        m_journal.fail(opened ? QStringLiteral("what cannot be read was opened")
                              : QStringLiteral("what can be read was not opened"));
    m_opened += opened ? 1 : 0;

    m_journal.note(QStringLiteral("select all"));
    for (KVTreeView *tree : Hands::usable<KVTreeView>(m_window.get())) {
        tree->setFocus();
        Hands::pressKey(tree, Qt::Key_A, Qt::ControlModifier);
    }
    wait(10);

    m_journal.note(QStringLiteral("play"));
    for (auto *button : Hands::usable<QAbstractButton>(m_window.get())) {
        if (button->parentWidget()->objectName() == QLatin1String("animTrackFrame") && dice.chance(40)) {
            Hands::click(button, button->rect().center(), Qt::LeftButton, Qt::NoModifier, false);
            wait(20);
        }
    }
    Hands::pressKey(m_window.get(), Qt::Key_Home, Qt::NoModifier);
    wait(10);

    m_journal.note(QStringLiteral("save"));
    Hands::pressKey(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    settle();
    const bool couldBeWhole = literal.length() == bytes.size() && !literal.hasNegativeCount();
    if ((literal.failed() || couldBeWhole) && TestSupport::readFile(path) != bytes)
        m_journal.fail(QStringLiteral("a file that nobody edited was saved otherwise"));
}

void MutantRun::decline()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    QAbstractButton *no = box ? box->button(QMessageBox::No) : nullptr;
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    else if (no)
        no->click(); // not to save, that is, what differs from its file since nobody can write it so
    else if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        dialog->reject();
}

void MutantRun::wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void MutantRun::settle()
{
    const QList<DocumentLoader *> loaders = m_window->findChildren<DocumentLoader *>();
    do {
        wait(5);
    } while (std::any_of(loaders.begin(), loaders.end(),
                         [](const DocumentLoader *loader) { return loader->isLoading(); }));
}
