// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReplaceFilesDialog.h"

#include "Companions.h"
#include "ConditionEdit.h"
#include "DocumentFiles.h"
#include "FileRun.h"
#include "Icons.h"
#include "Look.h"
#include "Memory.h"
#include "Patience.h"
#include "RecordTexts.h"
#include "Settings.h"
#include "Validation.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace {
constexpr int MostRows = 2000; ///< of values that are listed
enum Column { PlaceColumn, BeforeColumn, AfterColumn };

Companions companionsOf()
{
    return Companions({Settings::GamePath.value(), Settings::OutputDir.value()});
}
/// A value as the pages show it: by its name, where a box of names has it there.
QString valueText(const ReplacedField &change, const QByteArray &value)
{
    const QString text = QString::fromUtf8(value);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    const QStringList names = change.field->names();
    return isNumber && number >= 0 && number < names.size() ? names[number] : text;
}
} // namespace

ReplaceFilesDialog::ReplaceFilesDialog(const DocumentFiles &files, const QString &folder, QWidget *parent)
    : QDialog(parent)
    , m_files(files)
    , m_folder(folder)
    , m_condition(new ConditionBox(this))
    , m_field(new QComboBox(this))
    , m_value(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
    , m_state(new QLabel(this))
    , m_looked(std::make_shared<std::atomic_int>(0))
{
    setObjectName(QStringLiteral("ReplaceFilesDialog"));
    setWindowTitle(tr("Replace in Files"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(820, 560);
    auto *layout = new QVBoxLayout(this);
    createFields();
    m_tree->setObjectName(QStringLiteral("treeReplacements"));
    m_tree->setAccessibleName(tr("What would change"));
    m_tree->setHeaderLabels({tr("File and Record"), tr("Before"), tr("After")});
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setSectionResizeMode(PlaceColumn, QHeaderView::Stretch);
    m_tree->header()->setStretchLastSection(false);
    m_state->setObjectName(QStringLiteral("lblReplaceState"));
    m_state->setWordWrap(true);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_state);
    createButtons();
    m_progress.setInterval(100);
    connect(&m_progress, &QTimer::timeout, this,
            [this] { say(tr("Looking through the files: %1").arg(m_looked->load())); });
    connect(m_condition, &QComboBox::editTextChanged, this, &ReplaceFilesDialog::forget);
    connect(m_field, &QComboBox::editTextChanged, this, &ReplaceFilesDialog::forget);
    connect(m_value, &QLineEdit::textChanged, this, &ReplaceFilesDialog::forget);
    connect(m_tree, &QTreeWidget::itemChanged, this, &ReplaceFilesDialog::updateButtons);
    connect(&m_condition->line(), &ConditionEdit::entered, this, &ReplaceFilesDialog::list);
    connect(&m_condition->line(), &ConditionEdit::left, this, &QDialog::reject);
    forget();
    m_condition->setFocus();
}

void ReplaceFilesDialog::createFields()
{
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_condition->setObjectName(QStringLiteral("cbReplaceCondition"));
    m_condition->line().setObjectName(QStringLiteral("txtReplaceCondition"));
    m_condition->line().setAccessibleName(tr("Condition"));
    m_condition->line().setPlaceholderText(tr("actions sound = 1234, surfaces material ~ old/"));
    m_condition->line().setModels(KindSet::all(), nullptr);
    m_condition->setMinimumContentsLength(30);
    m_field->setObjectName(QStringLiteral("cbReplaceField"));
    m_field->setEditable(true);
    m_field->setInsertPolicy(QComboBox::NoInsert);
    m_field->setAccessibleName(tr("Field"));
    m_field->addItems(RecordWords::fieldProposals(KindSet::all()));
    m_field->setCurrentIndex(-1);
    m_field->lineEdit()->setPlaceholderText(tr("the field that gets the value"));
    m_value->setObjectName(QStringLiteral("txtReplaceValue"));
    m_value->setAccessibleName(tr("New value"));
    m_value->setPlaceholderText(tr("a value, a name, or a calculation such as *=1.5"));
    auto *where = new QLabel(QDir::toNativeSeparators(m_folder), this);
    where->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(tr("&Find:"), m_condition);
    form->addRow(tr("Fi&eld:"), m_field);
    form->addRow(tr("&New value:"), m_value);
    form->addRow(tr("In all files of:"), where);
    static_cast<QBoxLayout *>(layout())->addLayout(form);
    // The field is mostly the one that the condition asks for.
    connect(&m_condition->line(), &QLineEdit::editingFinished, this, [this] {
        Condition condition;
        if (m_field->currentText().isEmpty() && condition.read(m_condition->currentText(), nullptr).isEmpty())
            m_field->setEditText(condition.fieldWord());
    });
}

void ReplaceFilesDialog::createButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_list = buttons->addButton(tr("&List"), QDialogButtonBox::ActionRole);
    m_list->setObjectName(QStringLiteral("btnReplaceList"));
    m_list->setToolTip(tr("List what would change; nothing is written"));
    m_list->setDefault(true);
    m_replace = buttons->addButton(tr("&Replace"), QDialogButtonBox::ActionRole);
    m_replace->setObjectName(QStringLiteral("btnReplaceFiles"));
    m_replace->setToolTip(tr("Write the files that are ticked; Edit ▸ Replacements in Files… undoes it"));
    m_replace->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    layout()->addWidget(buttons);
    connect(m_list, &QPushButton::clicked, this, &ReplaceFilesDialog::list);
    connect(m_replace, &QPushButton::clicked, this, &ReplaceFilesDialog::replace);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ReplaceRule ReplaceFilesDialog::rule() const
{
    return {m_condition->currentText().trimmed(), m_field->currentText().trimmed(),
            m_value->text().trimmed()};
}

void ReplaceFilesDialog::say(const QString &text, bool isWarning)
{
    QPalette colors = palette();
    if (isWarning)
        colors.setColor(QPalette::WindowText, warningColor(colors));
    m_state->setPalette(colors);
    m_state->setText(text);
}

/// What is listed is what the fields ask for, or nothing.
void ReplaceFilesDialog::forget()
{
    m_work.cancel();
    m_progress.stop();
    m_found.clear();
    m_tree->clear();
    m_shown = 0;
    if (m_folder.isEmpty())
        say(tr("The mod's folder is not set: Edit ▸ Options names it."), true);
    else
        say(tr("Nothing is written before you have seen what would change."));
    updateButtons();
}

void ReplaceFilesDialog::updateButtons()
{
    const ReplaceRule asked = rule();
    m_list->setEnabled(!m_folder.isEmpty() && !asked.condition.isEmpty() && !asked.field.isEmpty());
    bool isAny = false;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row)
        isAny |= m_tree->topLevelItem(row)->checkState(PlaceColumn) == Qt::Checked;
    m_replace->setEnabled(isAny && !m_work.isRunning());
}

// --- Listing -----------------------------------------------------------------------------------------------

void ReplaceFilesDialog::list()
{
    if (!m_list->isEnabled())
        return;
    Condition condition;
    const QString reason = condition.read(m_condition->currentText(), nullptr);
    forget();
    // What lacks a name only is for the models to say.
    if (!reason.isEmpty() && !condition.lacksName())
        return say(reason, true);
    m_condition->keep();
    *m_looked = 0;
    m_progress.start();
    m_work.start(
        [rule = rule(), folder = m_folder, looked = m_looked](const Background::Cancelled &cancelled) {
            std::vector<FileReplacement> all;
            FileReplacement unmeant;
            bool isMeant = false;
            Companions companions = companionsOf();
            const QStringList files = modelFilesBelow(folder, all);
            for (const QString &file : files) {
                if (cancelled)
                    break;
                FileReplacement found;
                const QString lack = withinMemory([&] { found = findReplacement(file, rule, companions); });
                if (!lack.isEmpty())
                    found = {file, {}, lack, false, {}};
                isMeant |= !found.isUnmeant;
                if (found.isUnmeant)
                    unmeant = std::move(found);
                else if (!found.changes.empty() || !found.reason.isEmpty())
                    all.push_back(std::move(found));
                ++*looked;
            }
            // Where no model at all has what is called so, it is a mistake.
            if (!isMeant && unmeant.isUnmeant)
                all.push_back(std::move(unmeant));
            return all;
        },
        [this](std::vector<FileReplacement> found) { fill(std::move(found)); });
    updateButtons();
}

QString ReplaceFilesDialog::unsavedReason(const QString &path) const
{
    for (const DocumentType type :
         {DocumentType::SkinnedMesh, DocumentType::Anim, DocumentType::StaticMesh}) {
        const Document &document = *m_files.document(type);
        if (!document.path().isEmpty() && document.differsFromFile() &&
            QFileInfo(document.path()) == QFileInfo(path))
            return tr("It is open and has unsaved changes.");
    }
    return {};
}

void ReplaceFilesDialog::fill(std::vector<FileReplacement> found)
{
    m_progress.stop();
    if (found.size() == 1 && found.front().isUnmeant) {
        updateButtons();
        return say(found.front().reason, true);
    }
    qint64 values = 0;
    int files = 0;
    int problems = 0;
    for (FileReplacement &file : found) {
        if (file.reason.isEmpty())
            file.reason = unsavedReason(file.path);
        addFile(file);
        values += file.reason.isEmpty() ? qint64(file.changes.size()) : 0;
        files += file.reason.isEmpty() ? 1 : 0;
        problems += file.reason.isEmpty() ? 0 : 1;
    }
    m_found = std::move(found);
    for (const int column : {BeforeColumn, AfterColumn})
        m_tree->resizeColumnToContents(column);
    if (files == 0 && problems == 0)
        say(tr("Nothing to replace. Files looked through: %1.").arg(m_looked->load()));
    else if (problems == 0)
        say(tr("Values that would change: %1; files: %2.").arg(values).arg(files));
    else
        say(tr("Values that would change: %1; files: %2. Left out: %3.").arg(values).arg(files).arg(problems),
            true);
    constexpr int FewRows = 100;
    if (m_shown <= FewRows)
        m_tree->expandAll();
    updateButtons();
    if (m_tree->topLevelItemCount() > 0)
        m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

void ReplaceFilesDialog::addFile(const FileReplacement &file)
{
    const QString name = file.path == m_folder ? m_folder : QDir(m_folder).relativeFilePath(file.path);
    auto *item = new QTreeWidgetItem(m_tree, {QDir::toNativeSeparators(name)});
    item->setToolTip(PlaceColumn, QDir::toNativeSeparators(file.path));
    if (!file.reason.isEmpty()) {
        item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
        item->setIcon(PlaceColumn, namedIcon(QStringLiteral("warning")));
        item->setText(PlaceColumn, QStringLiteral("%1: %2").arg(item->text(PlaceColumn), file.reason));
        item->setToolTip(PlaceColumn, item->text(PlaceColumn));
        return;
    }
    item->setCheckState(PlaceColumn, Qt::Checked);
    item->setText(AfterColumn, tr("Values: %1").arg(file.changes.size()));
    for (size_t i = 0; i < file.changes.size(); ++i) {
        if (m_shown == MostRows) {
            new QTreeWidgetItem(item, {tr("and %1 more").arg(file.changes.size() - i)});
            return;
        }
        const ReplacedField &change = file.changes[i];
        auto *row = new QTreeWidgetItem(
            item, {recordPlace(change.record) + QStringLiteral(" \u203A ") + change.field->title(),
                   valueText(change, change.before), valueText(change, change.after)});
        row->setToolTip(PlaceColumn, change.place); // as the command line names it
        ++m_shown;
    }
}

// --- Replacing ---------------------------------------------------------------------------------------------

void ReplaceFilesDialog::replace()
{
    std::vector<FileReplacement> chosen;
    for (size_t row = 0; row < m_found.size(); ++row) {
        if (m_tree->topLevelItem(int(row))->checkState(PlaceColumn) != Qt::Checked)
            continue;
        const QString reason = unsavedReason(m_found[row].path);
        if (!reason.isEmpty())
            return say(
                QStringLiteral("%1: %2").arg(m_tree->topLevelItem(int(row))->text(PlaceColumn), reason),
                true);
        chosen.push_back(m_found[row]);
    }
    std::atomic_int percent{0};
    struct Done
    {
        FileRun::Outcome outcome;
        QString lack; ///< why nothing was begun
    };
    const auto work = [&chosen, &percent, rule = rule()](const Background::Cancelled &cancelled) {
        Done done;
        Companions companions = companionsOf();
        const QString title = QStringLiteral("%1: %2 = %3").arg(rule.condition, rule.field, rule.value);
        FileRun run(FileRun::defaultRoot(), title);
        const QString memory = withinMemory([&] {
            for (const FileReplacement &file : chosen) {
                const QString lack =
                    cancelled ? tr("Given up.") : addReplacement(run, file, rule, companions);
                if (done.lack.isEmpty() && !lack.isEmpty())
                    done.lack = QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(file.path), lack);
                if (!lack.isEmpty())
                    return;
            }
        });
        if (done.lack.isEmpty())
            done.lack = memory;
        if (done.lack.isEmpty())
            done.outcome = run.apply({&cancelled, &percent});
        else
            run.forget();
        return done;
    };
    const auto done = workWithPatience(work, tr("Replacing in files"), this, &percent);
    forget();
    QStringList paths;
    for (const FileReplacement &file : chosen)
        paths += file.path;
    emit filesChanged(paths);
    if (done && !done->lack.isEmpty())
        return say(tr("Nothing was changed. %1").arg(done->lack), true);
    if (!done || !done->outcome.isWhole) {
        say(tr("Broken off. Edit ▸ Replacements in Files… ends it, or takes it back."), true);
        emit runsWanted();
        return;
    }
    QString text =
        tr("Replaced. Files: %1. Edit ▸ Replacements in Files… undoes it.").arg(done->outcome.files);
    for (const FileRun::Problem &problem : done->outcome.problems)
        text += QStringLiteral("\n%1: %2").arg(QDir::toNativeSeparators(problem.path), problem.reason);
    say(text, !done->outcome.problems.isEmpty());
}
