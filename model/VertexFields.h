// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryFileReader.h"
#include "BinaryFileWriter.h"

// What a vertex of either kind of mesh begins with in the file: position, texture coordinates, normal.

template <typename Vertex>
void readVertexFields(BinaryFileReader &reader, Vertex &vertex)
{
    float v[8];
    reader.readFloats(v, 8);
    vertex.position = {v[0], v[1], v[2]};
    vertex.uv = {v[3], v[4]};
    vertex.normal = {v[5], v[6], v[7]};
}

template <typename Vertex>
void writeVertexFields(BinaryFileWriter &writer, const Vertex &vertex)
{
    const float v[8] = {vertex.position.x(), vertex.position.y(), vertex.position.z(), vertex.uv.x(),
                        vertex.uv.y(),       vertex.normal.x(),   vertex.normal.y(),   vertex.normal.z()};
    writer.writeFloats(v, 8);
}
