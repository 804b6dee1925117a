#pragma once

#include "ui/bindings.h"
#include "ui/work_window.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;

namespace pinmora {

class DetailsColumn;

/// The photos, and on the pages that show them, the map and what is known of the selected photo:
/// one set for all pages.
class WizardSurface : public QWidget {
    Q_OBJECT

public:
    explicit WizardSurface(const WorkWindowParts &parts, QWidget *parent = nullptr);

    PhotoPanel *photos() const { return photos_; }
    DetailsColumn &details() { return *details_; }
    /// List, map and details, as far as the keyboard goes between them.
    const std::vector<QWidget *> &areas() const { return areas_; }

private:
    void addPhotos(const WorkWindowParts &parts);
    void addMap(const WorkWindowParts &parts);
    void addDetails(const WorkWindowParts &parts);

    QHBoxLayout *row_;
    PhotoPanel *photos_ = nullptr;
    DetailsColumn *details_ = nullptr;
    std::vector<QWidget *> areas_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
