// Makes entities from the records of a file. Group codes stand as the numbers that the format's reference gives; the
// meaning of most of them depends on the entity.
#pragma once

#include "DxfContext.h"

namespace arxdxf
{

// Fills in the entity, its block name and so on, but not what all entities have in common. False for a type that the
// program does not draw. Throws DxfError for a record with missing or contradictory data.
bool MakeEntity(const DxfRecord& record, DxfContext& context, DxfEntity& entity);

// A polyline of the old kind with its VERTEX records; false for meshes, which the program does not draw.
bool MakeOldPolyline(const DxfRecord& polyline, const std::vector<DxfRecord>& vertices, DxfEntity& entity);

// The kinds that take more than a few lines.
void MakePolyline(const DxfRecord& record, DxfContext& context, DxfEntity& entity);
void MakeSpline(const DxfRecord& record, DxfContext& context, DxfEntity& entity);
void MakeHatch(const DxfRecord& record, DxfContext& context, DxfEntity& entity);
void MakeText(const DxfRecord& record, DxfContext& context, DxfEntity& entity);
void MakeMText(const DxfRecord& record, DxfContext& context, DxfEntity& entity);

// Layer, colour, visibility and handle. Called once for each entity.
void ReadCommon(const DxfRecord& record, DxfContext& context, DxfEntity& entity);

} // namespace arxdxf
