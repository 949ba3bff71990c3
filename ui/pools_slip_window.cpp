#include "ui/pools_slip_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include "seasons/startup.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

QLineEdit* CampoCorto(QWidget* madre, QBoxLayout* fila, const QString& etiqueta,
                      const QString& nombre, const QString& muestra) {
    fila->addWidget(new QLabel(etiqueta, madre));
    auto* campo = new QLineEdit(madre);
    campo->setObjectName(nombre);
    campo->setMaxLength(static_cast<int>(muestra.size()));
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(muestra + QStringLiteral("00")) +
                         16);
    fila->addWidget(campo);
    return campo;
}

QString TextoDivision(int division) {
    return division == seasons::kOtrosEquipos ? QString() : QString::number(division);
}

}  // namespace

VentanaJornadasQuinielaQt::VentanaJornadasQuinielaQt(const std::filesystem::path& carpetaTemporada,
                                                     std::string cabecera, base::Dialogo& dialogo,
                                                     QWidget* madre)
    : QDialog(madre), dialogo_(dialogo), boleto_(carpetaTemporada, std::move(cabecera), dialogo) {
    setObjectName(QStringLiteral("VentanaJornadasQuiniela"));
    setWindowTitle(QStringLiteral("Jornadas de Quinielas"));
    auto* caja = new QVBoxLayout(this);
    auto* cabeceraEtiqueta = new QLabel(Q(boleto_.Cabecera()), this);
    cabeceraEtiqueta->setObjectName(QStringLiteral("EtiquetaCabecera"));
    QFont negrita = cabeceraEtiqueta->font();
    negrita.setBold(true);
    cabeceraEtiqueta->setFont(negrita);
    caja->addWidget(cabeceraEtiqueta);

    auto* arriba = new QHBoxLayout;
    jornada_ = SelectorJornada(this, arriba);
    jornada_->setEditable(true);
    jornada_->setInsertPolicy(QComboBox::NoInsert);
    jornada_->setValidator(
        new QIntValidator(seasons::kPrimeraJornadaLista, seasons::kUltimaJornadaLista, jornada_));
    fecha_ = CampoCorto(this, arriba, QString(), QStringLiteral("CampoFecha"),
                        QStringLiteral("00/00/00"));
    fecha_->setPlaceholderText(QStringLiteral("Fecha"));
    jornadasLiga_[0] = CampoCorto(this, arriba, QStringLiteral("Jorn."),
                                  QStringLiteral("CampoJornada1"), QStringLiteral("00"));
    jornadasLiga_[1] = CampoCorto(this, arriba, QStringLiteral("de 2ª Div."),
                                  QStringLiteral("CampoJornada2"), QStringLiteral("00"));
    arriba->addStretch();
    caja->addLayout(arriba);

    auto* centro = new QHBoxLayout;
    rejilla_ = RejillaPartidos(
        this, {QStringLiteral("Local"), QStringLiteral("Visitante"), QStringLiteral("Div.")});
    rejilla_->setRowCount(seasons::kPartidosBoleto);
    rejilla_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
    centro->addWidget(rejilla_, 2);
    auto* derecha = new QVBoxLayout;
    auto* divisiones = new QHBoxLayout;
    division_ = SelectorDivision(this, divisiones);
    division_->addItem(QStringLiteral("Otros Equipos"));
    derecha->addLayout(divisiones);
    equipos_ = new QListWidget(this);
    equipos_->setObjectName(QStringLiteral("ListaEquipos"));
    equipos_->setContextMenuPolicy(Qt::CustomContextMenu);
    derecha->addWidget(equipos_, 1);
    otro_ = new QLineEdit(this);
    otro_->setObjectName(QStringLiteral("CampoOtroEquipo"));
    otro_->setMaxLength(15);
    otro_->setPlaceholderText(QStringLiteral("Otro equipo"));
    otro_->installEventFilter(this);
    derecha->addWidget(otro_);
    centro->addLayout(derecha, 1);
    caja->addLayout(centro, 1);

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Guardar"), QStringLiteral("BotonGuardar")),
            &QPushButton::clicked, this, &VentanaJornadasQuinielaQt::Guardar);
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);

    for (QLineEdit* campo : {fecha_, jornadasLiga_[0], jornadasLiga_[1]}) {
        campo->installEventFilter(this);
    }
    connect(jornada_, &QComboBox::activated, this, &VentanaJornadasQuinielaQt::ElegirJornada);
    connect(jornada_->lineEdit(), &QLineEdit::returnPressed, this,
            &VentanaJornadasQuinielaQt::ElegirJornada);
    connect(fecha_, &QLineEdit::textEdited, this,
            [this](const QString& texto) { boleto_.EscribirFecha(S(texto)); });
    for (int d = 1; d <= 2; ++d) {
        connect(jornadasLiga_[static_cast<std::size_t>(d - 1)], &QLineEdit::textEdited, this,
                [this, d](const QString& texto) { boleto_.EscribirJornadaLiga(d, S(texto)); });
    }
    connect(division_, &QComboBox::currentIndexChanged, this,
            &VentanaJornadasQuinielaQt::LlenarLista);
    connect(equipos_, &QListWidget::customContextMenuRequested, this,
            &VentanaJornadasQuinielaQt::MenuDeEquipos);
    connect(equipos_, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* equipo) { Agregar(equipo->text()); });
    connect(rejilla_, &QTableWidget::customContextMenuRequested, this,
            &VentanaJornadasQuinielaQt::MenuDeRejilla);

    LlenarLista();
    Refrescar();
    resize(720, 600);
}

template <typename F>
void VentanaJornadasQuinielaQt::Manejar(F&& mandato) {
    ConAviso(dialogo_, mandato);
    Refrescar();
}

int VentanaJornadasQuinielaQt::DivisionDeLista() const {
    return division_->currentIndex() == 2 ? seasons::kOtrosEquipos : division_->currentIndex() + 1;
}

void VentanaJornadasQuinielaQt::LlenarLista() {
    equipos_->clear();
    ConAviso(dialogo_, [&] {
        for (const auto& e : boleto_.Lista(DivisionDeLista())) equipos_->addItem(Q(e));
    });
    otro_->setVisible(DivisionDeLista() == seasons::kOtrosEquipos);
}

bool VentanaJornadasQuinielaQt::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return QDialog::eventFilter(objeto, evento);
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    const QString texto = tecla->text();
    const bool imprimible = texto.size() == 1 && texto.at(0).isPrint();
    if (objeto == fecha_ && imprimible && !boleto_.TeclaFecha(texto.at(0).toLatin1())) {
        return true;
    }
    if ((objeto == jornadasLiga_[0] || objeto == jornadasLiga_[1]) && imprimible &&
        !boleto_.TeclaJornadaLiga(texto.at(0).toLatin1())) {
        return true;
    }
    if (objeto == otro_ && (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter)) {
        if (!otro_->text().trimmed().isEmpty()) Agregar(otro_->text().trimmed());
        otro_->clear();
        return true;
    }
    return QDialog::eventFilter(objeto, evento);
}

void VentanaJornadasQuinielaQt::MenuDeEquipos(const QPoint& donde) {
    QListWidgetItem* equipo = equipos_->itemAt(donde);
    if (equipo == nullptr) return;
    const QString nombre = equipo->text();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuEquipo"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Agregar")), &QAction::triggered, this,
            [this, nombre] { Agregar(nombre); });
    menu->popup(equipos_->viewport()->mapToGlobal(donde));
}

void VentanaJornadasQuinielaQt::MenuDeRejilla(const QPoint& donde) {
    const QModelIndex celda = rejilla_->indexAt(donde);
    if (!celda.isValid() || celda.column() > 1) return;
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuCelda"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Borrar")), &QAction::triggered, this,
            [this, celda] { Manejar([&] { boleto_.Vaciar(celda.row(), celda.column()); }); });
    menu->popup(rejilla_->viewport()->mapToGlobal(donde));
}

void VentanaJornadasQuinielaQt::Agregar(const QString& equipo) {
    Manejar([&] { boleto_.Agregar(S(equipo), DivisionDeLista()); });
}

void VentanaJornadasQuinielaQt::ElegirJornada() {
    bool numero = false;
    const int jornada = jornada_->currentText().toInt(&numero);
    if (!numero) return;
    Manejar([&] { boleto_.ElegirJornada(jornada); });
}

void VentanaJornadasQuinielaQt::Guardar() {
    bool guardado = false;
    Manejar([&] { guardado = boleto_.Guardar(); });
    if (guardado && boleto_.JornadaNueva()) {
        LlenarLista();
        emit jornadaNueva(*boleto_.JornadaNueva());
    }
}

void VentanaJornadasQuinielaQt::Refrescar() {
    {
        const QSignalBlocker bloqueo(jornada_);
        jornada_->clear();
        for (int j : boleto_.Jornadas()) jornada_->addItem(QString::number(j));
        jornada_->setCurrentIndex(
            boleto_.Jornada() ? jornada_->findText(QString::number(*boleto_.Jornada())) : -1);
        if (boleto_.Jornada() && jornada_->currentIndex() < 0) {
            jornada_->setEditText(QString::number(*boleto_.Jornada()));
        }
    }
    if (S(fecha_->text()) != boleto_.Fecha()) fecha_->setText(Q(boleto_.Fecha()));
    for (int d = 1; d <= 2; ++d) {
        QLineEdit* campo = jornadasLiga_[static_cast<std::size_t>(d - 1)];
        if (S(campo->text()) != boleto_.JornadaLiga(d)) campo->setText(Q(boleto_.JornadaLiga(d)));
    }
    for (int f = 0; f < seasons::kPartidosBoleto; ++f) {
        const seasons::FilaBoleto& fila = boleto_.Rejilla()[static_cast<std::size_t>(f)];
        PonerCelda(rejilla_, f, 0, Q(fila.local));
        PonerCelda(rejilla_, f, 1, Q(fila.visitante));
        PonerCelda(rejilla_, f, 2,
                   fila.local.empty() && fila.visitante.empty() ? QString()
                                                                : TextoDivision(fila.division));
    }
}

}  // namespace quinteva::ui
