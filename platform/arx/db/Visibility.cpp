#include "Visibility.h"

#include "ObjectStore.h"
#include "dbsymtb.h"

namespace arxdb
{

bool IsShown(const AcDbEntity& entity)
{
    if (entity.isErased() || entity.visibility() == AcDb::kInvisible)
    {
        return false;
    }
    // Not opened: whoever has the layer open for writing may ask what it shows.
    const ObjectRecord* record = ObjectStore::Instance().Find(entity.layerId());
    const AcDbLayerTableRecord* layer = record == nullptr ? nullptr : AcDbLayerTableRecord::cast(record->object);
    return layer == nullptr || (!layer->isOff() && !layer->isFrozen());
}

} // namespace arxdb
