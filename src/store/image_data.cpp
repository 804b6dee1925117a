#include "store/image_data.h"

#include "persistence/property.h"

namespace pinmora {

const EntityDescription &image_data::description() {
    using D = image_data;
    static const EntityDescription entity(
        "image_data", []() -> std::unique_ptr<Record> { return std::make_unique<D>(); },
        {
            attribute<&D::name, &D::setName, &D::name_>("name"),
            attribute<&D::data, &D::setImage_data, &D::image_data_>("image_data"),
        },
        Lifetime::Memory);
    return entity;
}

} // namespace pinmora
