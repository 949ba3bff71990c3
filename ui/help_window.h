#pragma once

#include <QWidget>
#include <filesystem>

class QPushButton;
class QTextBrowser;

namespace quinteva::ui {

// La ayuda del programa: sus páginas HTML en la carpeta "ayuda" de los datos del programa, una
// por ventana y por página de la principal (el tema es su nombre de objeto: "VentanaRefundir",
// "PaginaReducir"), más el índice ("indice") y la guía del camino de una apuesta ("guia").
// Se leen en una sola ventana, que se abre sobre la que pide la ayuda, para que también se pueda
// usar con una ventana modal delante.
class VentanaAyuda : public QWidget {
    Q_OBJECT

  public:
    VentanaAyuda(const std::filesystem::path& carpeta, QWidget* madre);
    // Muestra la página del tema; sin página para él, el índice.
    void Mostrar(const QString& tema);
    // El tema de la página que se ve.
    QString Tema() const;

  private:
    std::filesystem::path carpeta_;
    QTextBrowser* texto_;
};

// La carpeta de las páginas: la pone la ventana principal al crearse.
void FijarCarpetaAyuda(const std::filesystem::path& carpeta);

// El tema de un widget: el nombre de la primera ventana o página que lo contiene (él incluido),
// salvo que una de ellas diga el suyo en la propiedad kPropiedadTema (la principal da el de la
// página que se ve); "indice" si no hay ninguna.
inline constexpr const char* kPropiedadTema = "temaDeAyuda";
QString TemaDeAyuda(const QWidget* widget);

// Abre la ayuda en el tema, sobre la ventana de "desde" (la que ya estaba abierta se cierra).
VentanaAyuda* AbrirAyuda(const QString& tema, QWidget* desde);

// Un botón "Ayuda" de una ventana: habilitado y con la ayuda de esa ventana.
void ConectarAyuda(QPushButton* boton);

// F1 en cualquier ventana del programa: la ayuda del widget que tiene el foco. Un filtro de
// eventos de la aplicación, porque una ventana modal no deja llegar los atajos a la principal.
class TeclaDeAyuda : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
};

}  // namespace quinteva::ui
