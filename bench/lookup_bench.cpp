// What the lookup of place names costs: as many requests made by the photos against the same bytes
// sent one after the other, on a connection that stays open, to the same server.

#include "ratio.h"

#include "memory_library.h"

#include "places/place_names.h"
#include "places/soap_envelope.h"
#include "services/local_server.h"
#include "store/image.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <memory>
#include <stdexcept>
#include <vector>

using namespace pinmora;

namespace {

constexpr int many = 1'000;

/// All over the world.
std::vector<PositionTexts> positions() {
    std::vector<PositionTexts> positions;
    positions.reserve(many);
    for (int i = 0; i < many; ++i) {
        positions.push_back({std::to_string(i * 37 % 179 - 89) + ".4567",
                             std::to_string(i * 101 % 359 - 179) + ".1234"});
    }
    return positions;
}

/// One after the other, by the same client: it is what a request costs where nobody looks at its
/// answer.
void askBare(const std::string &address, const std::vector<PositionTexts> &positions) {
    QNetworkAccessManager network;
    const QUrl url(QString::fromStdString(address + "/TerraService2.asmx"));
    for (const PositionTexts &position : positions) {
        QNetworkRequest request(url);
        request.setRawHeader("Content-Type", "text/xml; charset=utf-8");
        request.setRawHeader("Soapaction",
                             QByteArray::fromStdString(placeAction(LocalServer::placeNamespace)));
        const std::string envelope = placeEnvelope(LocalServer::placeNamespace, position);
        const std::unique_ptr<QNetworkReply> reply(
            network.post(request, QByteArray::fromStdString(envelope)));
        QEventLoop loop;
        QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        if (!reply->readAll().contains("Result>")) {
            throw std::runtime_error("the server does not answer the bare client");
        }
    }
}

void askForPhotos(const std::string &address, const std::vector<PositionTexts> &positions) {
    tag::MemoryLibrary library;
    PlaceNames names(library.context, [&] {
        return PlaceService{
            .address = address, .host = "", .nameSpace = LocalServer::placeNamespace};
    });
    library.model.setPlaceNames(&names);
    for (const PositionTexts &position : positions) {
        library.context.insert<image>().updateLatAndLon(position);
    }
    QEventLoop loop;
    const Connection arriving = names.awaited.onChange([&loop](std::size_t left) {
        if (left == 0) {
            loop.quit();
        }
    });
    loop.exec();
    for (const image *photo : library.context.records<image>()) {
        if (photo->country().view().empty()) {
            throw std::runtime_error("a photo has not got its names");
        }
    }
}

void measure(bench::Report &report) {
    LocalServer server({});
    const std::string address = server.address();
    const std::vector<PositionTexts> asked = positions();
    askBare(address, asked); // the gazetteer is read now
    const bench::Pair pair =
        bench::bestPair([&] { askForPhotos(address, asked); }, [&] { askBare(address, asked); });
    report.atMost("1,000 place lookups / bare requests", pair.ratio(), 3);
    std::fprintf(stderr, "lookups %.3f s, bare requests %.3f s\n", pair.work, pair.yardstick);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    return bench::run(measure);
}
