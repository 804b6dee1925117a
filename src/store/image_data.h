#pragma once

#include "persistence/record.h"

namespace pinmora {

/// The photo that the preview shows.
class image_data : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    /// Full path of the photo; "" when no single photo is selected.
    const Text &name() const { return read("name", name_); }
    void setName(Text name) { change("name", name_, std::move(name)); }
    /// The picture, encoded; absent when no single photo is selected.
    const std::optional<Bytes> &data() const { return read("image_data", image_data_); }
    void setImage_data(std::optional<Bytes> data) {
        change("image_data", image_data_, std::move(data));
    }

private:
    Text name_;
    std::optional<Bytes> image_data_;
};

} // namespace pinmora
