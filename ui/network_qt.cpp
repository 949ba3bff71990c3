#include "ui/network_qt.h"

#include <QNetworkReply>
#include <QPointer>
#include <QUrlQuery>
#include <chrono>
#include <future>
#include <memory>

#include "base/atomic_write.h"
#include "ui/qt_text.h"

namespace quinteva::ui {

namespace {

constexpr int kEsperaMaxima = 30000;  // ms sin datos antes de dar la petición por perdida
constexpr auto kMirarParada = std::chrono::milliseconds(50);

RedQt::Llegada Cancelada() {
    return {QNetworkReply::OperationCanceledError, QStringLiteral("Operación cancelada"), {}};
}

}  // namespace

QUrl RedQt::Direccion(std::string_view ruta, const base::Consulta& consulta) const {
    QUrl url(servidor_);
    url.setPath(url.path() + Q(ruta));
    QUrlQuery pares;
    for (const auto& [clave, valor] : consulta) pares.addQueryItem(Q(clave), Q(valor));
    url.setQuery(pares);
    return url;
}

RedQt::Llegada RedQt::Traer(const QUrl& url) {
    auto promesa = std::make_shared<std::promise<Llegada>>();
    auto futuro = promesa->get_future();
    QPointer<QNetworkAccessManager> gestor(&gestor_);
    QMetaObject::invokeMethod(
        &gestor_,
        [gestor, url, promesa] {
            QNetworkRequest peticion(url);
            peticion.setTransferTimeout(kEsperaMaxima);
            if (gestor.isNull()) return;
            QNetworkReply* respuesta = gestor->get(peticion);
            QObject::connect(respuesta, &QNetworkReply::finished, respuesta, [respuesta, promesa] {
                promesa->set_value({static_cast<int>(respuesta->error()), respuesta->errorString(),
                                    respuesta->readAll()});
                respuesta->deleteLater();
            });
        },
        Qt::QueuedConnection);
    while (futuro.wait_for(kMirarParada) != std::future_status::ready) {
        if (parada_.Detenido()) return Cancelada();
    }
    return futuro.get();
}

base::Pagina RedQt::Pedir(std::string_view ruta, const base::Consulta& consulta) {
    const Llegada llegada = Traer(Direccion(ruta, consulta));
    if (llegada.error != 0) return {llegada.error, S(llegada.texto), ""};
    return {0, "", llegada.datos.toStdString()};
}

int RedQt::Descargar(std::string_view ruta, const std::filesystem::path& destino) {
    const Llegada llegada = Traer(Direccion(ruta, {}));
    if (llegada.error != 0) return llegada.error;
    try {
        base::EscribirAtomico(destino,
                              std::string_view(llegada.datos.constData(),
                                               static_cast<std::size_t>(llegada.datos.size())));
    } catch (const std::exception&) {
        return QNetworkReply::UnknownContentError;
    }
    return 0;
}

}  // namespace quinteva::ui
