// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialDocument.h"

#include "Files.h"
#include "KMat.h"
#include "WholeFile.h"

#include <QUndoCommand>

#include <utility>

/// An edit of the text; it and what takes it back change places.
class MaterialTextCommand : public QUndoCommand
{
public:
    MaterialTextCommand(MaterialDocument &document, TextEdit edit, const QString &words)
        : QUndoCommand(words)
        , m_document(document)
        , m_edit(std::move(edit))
    {}

    void undo() override { m_edit = m_document.apply(m_edit); }
    void redo() override { m_edit = m_document.apply(m_edit); }

private:
    MaterialDocument &m_document;
    TextEdit m_edit;
};

MaterialDocument::MaterialDocument(QObject *parent)
    : QObject(parent)
{}

MaterialDocument::Read MaterialDocument::read(const QString &path)
{
    const FileStamp stamp = FileStamp::of(path);
    QString reason;
    const std::unique_ptr<QIODevice> file = Files::open(path, &reason);
    if (!file)
        return {reason.isEmpty() ? tr("There is no such file.") : reason, {}, {}};
    if (file->size() > MostMaterialBytes)
        return {
            tr("The file has more than %1 MiB: it is no material file.").arg(MostMaterialBytes / 1024 / 1024),
            {},
            {}};
    const qint64 size = file->size();
    const QByteArray bytes = file->readAll();
    if (bytes.size() != size)
        return {tr("The file could not be read whole."), {}, {}};
    return {{}, KMatText(bytes), stamp};
}

void MaterialDocument::start(const QString &path)
{
    take(path, {});
}

void MaterialDocument::restore(const QString &path, const QByteArray &bytes, const FileStamp &stamp)
{
    take(path, {{}, KMatText(bytes), stamp});
    m_stack.resetClean();
}

void MaterialDocument::take(const QString &path, Read read)
{
    emit aboutToBeReplaced();
    m_stack.clear();
    m_isOpen = true;
    m_path = path;
    m_stamp = read.stamp;
    m_text = std::move(read.text);
    emit replaced();
    emit changed();
}

QString MaterialDocument::save(const QString &path)
{
    const QString reason = writeWholeFile(path, m_text.bytes());
    if (!reason.isEmpty())
        return reason;
    m_path = path;
    m_stamp = FileStamp::of(path);
    m_stack.setClean();
    emit saved(path);
    return {};
}

void MaterialDocument::keep()
{
    m_stamp = FileStamp::of(m_path);
    m_stack.resetClean();
}

QString MaterialDocument::setTexture(int material, int sampler, const QString &texture)
{
    TextEdit edit;
    const QString problem = m_text.findTextureEdit(material, sampler, texture, edit);
    if (problem.isEmpty())
        push(edit, tr("Texture of %1").arg(m_text.materials()[size_t(material)].name));
    return problem;
}

QString MaterialDocument::rename(int material, const QString &name)
{
    TextEdit edit;
    const QString problem = m_text.findRenaming(material, name, edit);
    if (problem.isEmpty())
        push(edit, tr("Rename %1 to %2").arg(m_text.materials()[size_t(material)].name, name));
    return problem;
}

QString MaterialDocument::addMaterial(const QString &name, const QString &texture)
{
    TextEdit edit;
    const QString problem = m_text.findAddition(name, texture, edit);
    if (problem.isEmpty())
        push(edit, tr("New Material %1").arg(name));
    return problem;
}

void MaterialDocument::push(const TextEdit &edit, const QString &words)
{
    m_stack.push(new MaterialTextCommand(*this, edit, words));
}

TextEdit MaterialDocument::apply(const TextEdit &edit)
{
    TextEdit back = m_text.apply(edit);
    emit changed();
    return back;
}
