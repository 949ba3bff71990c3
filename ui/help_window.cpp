#include "ui/help_window.h"

#include <QApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace quinteva::ui {

namespace {

std::filesystem::path& Carpeta() {
    static std::filesystem::path carpeta;
    return carpeta;
}

QPointer<VentanaAyuda>& Abierta() {
    static QPointer<VentanaAyuda> abierta;
    return abierta;
}

const QString kIndice = QStringLiteral("indice");
const QString kGuia = QStringLiteral("guia");

QPushButton* BotonDeAyuda(QWidget* madre, QHBoxLayout* fila, const QString& texto,
                          const QString& nombre) {
    auto* b = new QPushButton(texto, madre);
    b->setObjectName(nombre);
    fila->addWidget(b);
    return b;
}

}  // namespace

VentanaAyuda::VentanaAyuda(const std::filesystem::path& carpeta, QWidget* madre)
    : QWidget(madre, Qt::Window), carpeta_(carpeta) {
    setObjectName(QStringLiteral("VentanaAyuda"));
    setWindowTitle(QStringLiteral("Ayuda de Quinteva"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* caja = new QVBoxLayout(this);
    auto* fila = new QHBoxLayout;
    auto* indice =
        BotonDeAyuda(this, fila, QStringLiteral("Í&ndice"), QStringLiteral("BotonIndice"));
    auto* guia = BotonDeAyuda(this, fila, QStringLiteral("&Guía"), QStringLiteral("BotonGuia"));
    auto* atras = BotonDeAyuda(this, fila, QStringLiteral("A&trás"), QStringLiteral("BotonAtras"));
    auto* adelante =
        BotonDeAyuda(this, fila, QStringLiteral("A&delante"), QStringLiteral("BotonAdelante"));
    fila->addStretch();
    auto* cerrar =
        BotonDeAyuda(this, fila, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar"));
    caja->addLayout(fila);
    texto_ = new QTextBrowser(this);
    texto_->setObjectName(QStringLiteral("TextoAyuda"));
    texto_->setOpenLinks(true);
    texto_->setOpenExternalLinks(false);
    texto_->setSearchPaths({QString::fromStdString(carpeta_.string())});
    caja->addWidget(texto_);
    atras->setEnabled(false);
    adelante->setEnabled(false);
    connect(indice, &QPushButton::clicked, this, [this] { Mostrar(kIndice); });
    connect(guia, &QPushButton::clicked, this, [this] { Mostrar(kGuia); });
    connect(atras, &QPushButton::clicked, texto_, &QTextBrowser::backward);
    connect(adelante, &QPushButton::clicked, texto_, &QTextBrowser::forward);
    connect(texto_, &QTextBrowser::backwardAvailable, atras, &QPushButton::setEnabled);
    connect(texto_, &QTextBrowser::forwardAvailable, adelante, &QPushButton::setEnabled);
    connect(cerrar, &QPushButton::clicked, this, &QWidget::close);
    resize(720, 600);
}

void VentanaAyuda::Mostrar(const QString& tema) {
    auto pagina = carpeta_ / (tema.toStdString() + ".html");
    if (!std::filesystem::exists(pagina)) pagina = carpeta_ / (kIndice.toStdString() + ".html");
    texto_->setSource(QUrl::fromLocalFile(QString::fromStdString(pagina.string())));
}

QString VentanaAyuda::Tema() const {
    return QFileInfo(texto_->source().toLocalFile()).completeBaseName();
}

void FijarCarpetaAyuda(const std::filesystem::path& carpeta) { Carpeta() = carpeta; }

QString TemaDeAyuda(const QWidget* widget) {
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        const QString propio = w->property(kPropiedadTema).toString();
        if (!propio.isEmpty()) return propio;
        const QString nombre = w->objectName();
        if (nombre.startsWith(QStringLiteral("Pagina")) ||
            (nombre.startsWith(QStringLiteral("Ventana")) &&
             nombre != QStringLiteral("VentanaAyuda")))
            return nombre;
    }
    return kIndice;
}

VentanaAyuda* AbrirAyuda(const QString& tema, QWidget* desde) {
    QWidget* sobre = desde ? desde->window() : nullptr;
    auto& abierta = Abierta();
    if (abierta && abierta->parentWidget() != sobre) {
        abierta->close();  // se borra después
        abierta = nullptr;
    }
    if (!abierta) abierta = new VentanaAyuda(Carpeta(), sobre);
    abierta->Mostrar(tema);
    abierta->show();
    abierta->raise();
    abierta->activateWindow();
    return abierta;
}

void ConectarAyuda(QPushButton* boton) {
    boton->setEnabled(true);
    QObject::connect(boton, &QPushButton::clicked, boton,
                     [boton] { AbrirAyuda(TemaDeAyuda(boton), boton); });
}

bool TeclaDeAyuda::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent*>(evento)->key() != Qt::Key_F1 || !objeto->isWidgetType()) {
        return false;
    }
    auto* widget = static_cast<QWidget*>(objeto);
    if (widget->window()->objectName() == QStringLiteral("VentanaAyuda")) return false;
    AbrirAyuda(TemaDeAyuda(widget), widget);
    return true;
}

}  // namespace quinteva::ui
