#include "ui/import_window.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "outputs/print_paper.h"
#include "outputs/print_slips.h"
#include "ui/official_file_window.h"
#include "ui/paper_print_window.h"
#include "ui/print_range_dialog.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"
#include "ui/slip_grid.h"
#include "ui/slip_print_window.h"

namespace quinteva::ui {

namespace {

enum Tipo { kConPleno, kSinPleno, kJson };

constexpr std::string_view kFiltroTexto = "Archivo de texto (*.txt)|*.txt|";
constexpr std::string_view kFiltroJson = "Archivo oficial JSON (*.json)|*.json|";

}  // namespace

VentanaImportar::VentanaImportar(Entorno entorno, QWidget* madre)
    : QDialog(madre), e_(std::move(entorno)) {
    setObjectName(QStringLiteral("VentanaImportar"));
    setWindowTitle(QStringLiteral("Importar archivo"));
    auto* fila = new QHBoxLayout(this);
    auto* izquierda = new QVBoxLayout;
    boleto_ = new RejillaBoleto(this);
    izquierda->addWidget(boleto_);
    cuenta_ = new QLabel(this);
    cuenta_->setObjectName(QStringLiteral("ColumnasImportadas"));
    izquierda->addWidget(cuenta_);
    fila->addLayout(izquierda);
    auto* derecha = new QVBoxLayout;
    const auto boton = [this, derecha](const QString& texto, const char* nombre, auto accion) {
        auto* b = new QPushButton(texto, this);
        b->setObjectName(QString::fromLatin1(nombre));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, accion);
        derecha->addWidget(b);
    };
    boton(QStringLiteral("I&mportar Archivo con P15 a goles"), "BotonImportarConPleno",
          [this] { Importar(kConPleno); });
    boton(QStringLiteral("I&mportar Archivo sin P15 a goles"), "BotonImportarSinPleno",
          [this] { Importar(kSinPleno); });
    boton(QStringLiteral("Importar archivo  oficial JSON"), "BotonImportarJson",
          [this] { Importar(kJson); });
    boton(QStringLiteral("&Generar fichero oficial"), "BotonGenerarOficial",
          [this] { GenerarOficial(); });
    boton(QStringLiteral("Completar a 100 columnas"), "BotonCompletar", [this] { Completar(); });
    auto* grupo = new QGroupBox(QStringLiteral("Imprimir"), this);
    auto* cajaModos = new QVBoxLayout(grupo);
    const outputs::ModoImportado guardado = outputs::ModoGuardado(e_.ajustes);
    for (std::size_t m = 0; m < modos_.size(); ++m) {
        const auto modo = static_cast<outputs::ModoImportado>(m);
        modos_[m] = new QRadioButton(Q(outputs::LeyendaModo(modo)), grupo);
        modos_[m]->setObjectName(QStringLiteral("Modo") + Q(outputs::TextoModo(modo)));
        modos_[m]->setChecked(modo == guardado);
        connect(modos_[m], &QRadioButton::toggled, this, [this, modo](bool marcado) {
            if (marcado) outputs::GuardarModo(e_.ajustes, modo);
        });
        cajaModos->addWidget(modos_[m]);
    }
    derecha->addWidget(grupo);
    boton(QStringLiteral("&Ajustes de Impresión"), "BotonAjustesImpresion",
          [this] { AjustesDeImpresion(); });
    boton(QStringLiteral("Imprimir Un&o"), "BotonImprimirUno", [this] { ImprimirUno(); });
    boton(QStringLiteral("Imprimir &Todos"), "BotonImprimirTodos", [this] { ImprimirTodos(); });
    derecha->addStretch();
    boton(QStringLiteral("&Salir"), "BotonSalir", [this] { close(); });
    fila->addLayout(derecha);
    connect(boleto_, &RejillaBoleto::boletoElegido, this, &VentanaImportar::Mostrar);
    Poner({});
}

void VentanaImportar::Poner(outputs::ListaImportada lista) {
    lista_ = std::move(lista);
    cuenta_->setText(QStringLiteral("Columnas importadas: %1").arg(lista_.columnasImportadas));
    boleto_->PonerBoletos(outputs::BoletosImportados(lista_));
    Mostrar(1);
}

void VentanaImportar::Mostrar(int boleto) {
    if (lista_.columnasImportadas <= 0) {
        boleto_->Mostrar({});
        return;
    }
    ConAviso(e_.dialogo, [&] {
        boleto_->Mostrar(outputs::EscrolImportado(lista_, e_.carpetaTrabajo, boleto));
    });
}

void VentanaImportar::Importar(int tipo) {
    const auto archivo =
        e_.dialogo.ArchivoParaAbrir(QStringLiteral("Importar archivo").toStdString(),
                                    tipo == kJson ? kFiltroJson : kFiltroTexto, e_.carpetaTrabajo);
    if (!archivo) return;
    setCursor(Qt::WaitCursor);
    try {
        Poner(tipo == kJson
                  ? outputs::ImportarJson(*archivo, e_.carpetaTrabajo)
                  : outputs::ImportarTexto(*archivo, tipo == kConPleno, e_.carpetaTrabajo));
    } catch (const std::exception& e) {
        e_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
    unsetCursor();
}

outputs::ModoImportado VentanaImportar::Modo() const {
    for (std::size_t m = 0; m < modos_.size(); ++m) {
        if (modos_[m]->isChecked()) return static_cast<outputs::ModoImportado>(m);
    }
    return outputs::ModoImportado::Boletos;
}

void VentanaImportar::Enviar(std::int32_t desde, std::int32_t hasta) {
    const outputs::ModoImportado modo = Modo();
    if (!outputs::PuedeImprimir(e_.ajustes, modo, e_.dialogo)) return;
    try {
        const auto columnas = outputs::LeerImportadas(e_.carpetaTrabajo);
        const outputs::Direccion direccion = outputs::DireccionGuardada(e_.ajustes);
        const outputs::DisposicionBoleto disposicion =
            modo == outputs::ModoImportado::Boletos
                ? outputs::DisposicionDeBoletos(
                      direccion, outputs::ValoresGuardados(e_.ajustes, direccion), e_.fecha)
                : outputs::DisposicionDePapel(direccion, outputs::AjustePapelGuardado(e_.ajustes),
                                              e_.fecha,
                                              modo == outputs::ModoImportado::Papel2 ? 2 : 1);
        e_.imprimir(outputs::ImprimirTodos(columnas, desde, hasta, disposicion));
    } catch (const std::exception& e) {
        e_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
}

void VentanaImportar::ImprimirUno() {
    if (lista_.columnasImportadas <= 0) return;
    const std::int32_t boleto = boleto_->Boleto();
    Enviar((boleto - 1) * outputs::kColumnasPorBoleto + 1, boleto * outputs::kColumnasPorBoleto);
}

void VentanaImportar::ImprimirTodos() {
    if (lista_.columnasImportadas <= 0) return;
    VentanaSeleccionImpresion::Abrir(
        this, boleto_->Boletos(), e_.dialogo,
        [this](outputs::RangoDeColumnas r) { Enviar(r.desde, r.hasta); });
}

void VentanaImportar::AjustesDeImpresion() {
    ColumnasAImprimir columnas{outputs::LeerImportadas(e_.carpetaTrabajo), e_.fecha};
    VentanaDeImpresion* ventana = nullptr;
    if (Modo() == outputs::ModoImportado::Boletos) {
        ventana = new VentanaImprimirBoletos(std::move(columnas), e_.ajustes, e_.dialogo,
                                             e_.imprimir, this);
    } else {
        ventana = new VentanaImprimirPapel(std::move(columnas), e_.ajustes, e_.dialogo, e_.imprimir,
                                           this);
    }
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->MostrarAjuste();
    ventana->open();
}

void VentanaImportar::GenerarOficial() {
    auto* ventana = new VentanaArchivoOficial(
        outputs::PeticionImportacion{"", "", lista_.columnasImportadas, e_.carpetaTrabajo},
        e_.dialogo, e_.ajustes, this);
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->open();
}

void VentanaImportar::Completar() {
    ConAviso(e_.dialogo, [this] {
        if (outputs::CompletarA100(lista_, e_.carpetaTrabajo, e_.azar, e_.dialogo)) {
            cuenta_->setText(
                QStringLiteral("Columnas importadas: %1").arg(lista_.columnasImportadas));
        }
    });
}

}  // namespace quinteva::ui
