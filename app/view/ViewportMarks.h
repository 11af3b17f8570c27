// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

class KVOpenGLWidget;

/// Marks a document's current record in its viewport (surface, bone, hot point, action offset) and takes the
/// marks of the record before it away.
void markRecord(KVOpenGLWidget &viewport, const SkinnedMesh &mesh, const RecordRef &record);
void markRecord(KVOpenGLWidget &viewport, const AnimFile &file, const RecordRef &record);
void markRecord(KVOpenGLWidget &viewport, const StaticMesh &mesh, const RecordRef &record);

/// Brings a viewport's picture up to date after records of its model have changed.
void refreshChanged(KVOpenGLWidget &viewport, const QVector<RecordRef> &records);
