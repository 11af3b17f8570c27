// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EveryWindow.h"

/// Whether everything can be named by a screen reader and reached by the keyboard.
class tst_Accessibility : public QObject
{
    Q_OBJECT

private slots:
    void everythingHasANameAndItsLetter()
    {
        EveryWindow windows(m_home.path());
        QStringList faults;
        for (const QWidget *window : windows.all())
            faults << EveryWidget::withoutName(*window);
        checkNone(faults);
        checkNone(windows.mnemonicClashes());
    }

    /// The toolkit asks for the text of the current row, also where none is.
    void everyListIsCopiedFromWithNoRowCurrent()
    {
        EveryWindow windows(m_home.path());
        for (const QWidget *window : windows.all()) {
            for (auto *view : window->findChildren<QAbstractItemView *>()) {
                view->setCurrentIndex({});
                QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
                QVERIFY2(!view->model() || !view->model()->data({}).isValid(),
                         qPrintable(EveryWidget::describe(view)));
            }
        }
    }

    void everyDialogIsUsableByKeyboard()
    {
        EveryWindow windows(m_home.path());
        QStringList faults;
        for (QWidget *window : windows.all()) {
            auto *dialog = qobject_cast<QDialog *>(window);
            if (!dialog)
                continue;
            dialog->show();
            QApplication::setActiveWindow(dialog);

            // Tab goes round, through everything that takes the focus and can be seen.
            QSet<QWidget *> expected;
            for (QWidget *widget : dialog->findChildren<QWidget *>()) {
                // Of radio buttons the chosen one is come to; the arrows lead on.
                const auto *radio = qobject_cast<QRadioButton *>(widget);
                if (radio && !radio->isChecked())
                    continue;
                if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
                    EveryWidget::isInteractive(widget))
                    expected << widget;
            }
            for (int i = 0; i < 3 * expected.size() + 20 && !expected.isEmpty(); ++i) {
                if (QWidget *focus = dialog->focusWidget())
                    expected.remove(focus);
                QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key_Tab);
            }
            for (const QWidget *widget : qAsConst(expected))
                faults << EveryWidget::describe(widget);

            QTest::keyClick(dialog, Qt::Key_Escape);
            QVERIFY2(!dialog->isVisible(), dialog->metaObject()->className());
        }
        checkNone(faults);
    }

private:
    const ProgramFolder m_home{};
};

QTEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
