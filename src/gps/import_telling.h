#pragma once

#include "platform/input_file.h"
#include "platform/xml_parser.h"
#include "store/import_journal.h"

#include <string>

namespace pinmora {

/// Tells a journal of one log while it is read, from the making of this object to its end. Without
/// a journal it tells nobody, and what it is given to pass on stays where it is.
class ImportTelling {
public:
    /// The journal may be null.
    ImportTelling(ImportJournal *journal, const ImportFacts &facts) : journal_(journal) {
        if (journal_) {
            journal_->beginImport(facts);
        }
    }
    ImportTelling(const ImportTelling &) = delete;
    ImportTelling &operator=(const ImportTelling &) = delete;
    ~ImportTelling() {
        if (journal_) {
            journal_->endImport();
        }
    }

    /// Passes on bytes that have been read.
    void give(std::string &bytes) const {
        if (journal_ && !bytes.empty()) {
            journal_->importBytes(std::move(bytes));
            bytes.clear();
        }
    }

    /// The same, and makes room for inputBlockSize bytes in their place.
    void exchange(std::string &block) const {
        if (journal_) {
            give(block);
            block = journal_->spareBlock();
        } else {
            block.resize(inputBlockSize);
        }
    }

    /// A reader of entities that passes on what it gives.
    EntityReader listenedTo(EntityReader readEntity) const {
        if (!journal_) {
            return readEntity;
        }
        return [journal = journal_, readEntity = std::move(readEntity)](std::string_view name) {
            std::optional<std::string> content = readEntity(name);
            journal->importEntity(name, content);
            return content;
        };
    }

private:
    ImportJournal *const journal_;
};

} // namespace pinmora
