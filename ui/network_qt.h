#pragma once

#include <QNetworkAccessManager>
#include <QString>
#include <QUrl>

#include "base/network.h"
#include "base/progress.h"

namespace quinteva::ui {

// El cliente de la red del programa. El gestor vive en el hilo de la ventana, donde llegan sus
// sucesos; Pedir y Descargar se llaman desde el hilo de fondo del flujo, que espera su respuesta
// sin parar la ventana y deja de esperar si se pide parar.
class RedQt final : public base::Red {
  public:
    RedQt(QNetworkAccessManager& gestor, const QString& servidor, const base::Progreso& parada)
        : gestor_(gestor), servidor_(servidor), parada_(parada) {}

    base::Pagina Pedir(std::string_view ruta, const base::Consulta& consulta) override;
    int Descargar(std::string_view ruta, const std::filesystem::path& destino) override;

    // Lo que llega de una petición: el código de QNetworkReply (0 bien), su texto y los datos.
    struct Llegada {
        int error = 0;
        QString texto;
        QByteArray datos;
    };

  private:
    QUrl Direccion(std::string_view ruta, const base::Consulta& consulta) const;
    Llegada Traer(const QUrl& url);

    QNetworkAccessManager& gestor_;
    QString servidor_;
    const base::Progreso& parada_;
};

}  // namespace quinteva::ui
