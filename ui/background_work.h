#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <thread>

#include "base/progress.h"

namespace quinteva::ui {

// El Progreso de un trabajo en otro hilo: el núcleo escribe el avance en atómicos y mira la marca
// de "&Detener"; la ventana lo lee con un temporizador, sin colas de eventos de por medio.
class ProgresoAtomico final : public base::Progreso {
  public:
    void Avance(std::int64_t hecho, std::int64_t total) override {
        hecho_.store(hecho, std::memory_order_relaxed);
        total_.store(total, std::memory_order_relaxed);
    }
    bool Detenido() const override { return detener_.load(std::memory_order_relaxed); }
    void Escritas(std::int64_t escritas) override {
        escritas_.store(escritas, std::memory_order_relaxed);
    }

    void Detener() { detener_.store(true, std::memory_order_relaxed); }
    void Reiniciar() {
        hecho_ = 0;
        total_ = 0;
        escritas_ = 0;
        detener_ = false;
    }
    std::int64_t Hecho() const { return hecho_.load(std::memory_order_relaxed); }
    std::int64_t Total() const { return total_.load(std::memory_order_relaxed); }
    std::int64_t Escritas() const { return escritas_.load(std::memory_order_relaxed); }

  private:
    std::atomic<std::int64_t> hecho_{0};
    std::atomic<std::int64_t> total_{0};
    std::atomic<std::int64_t> escritas_{0};
    std::atomic<bool> detener_{false};
};

// Un trabajo largo (generar, reducir) en un hilo propio. Al acabar, "terminado" llega por la cola
// de eventos del hilo de la ventana; si el trabajo lanzó, "fallo" con la descripción. Solo uno a
// la vez; destruirlo pide parar y espera.
class TrabajoEnSegundoPlano : public QObject {
    Q_OBJECT

  public:
    explicit TrabajoEnSegundoPlano(QObject* madre = nullptr) : QObject(madre) {}
    ~TrabajoEnSegundoPlano() override;

    bool EnCurso() const { return enCurso_; }
    ProgresoAtomico& Progreso() { return progreso_; }
    void Empezar(std::function<void(base::Progreso&)> trabajo);
    void Detener() { progreso_.Detener(); }
    // Espera a que acabe el hilo (para las pruebas y el cierre).
    void Esperar();

  signals:
    void terminado();
    void fallo(const QString& descripcion);

  private:
    void Acabar(const QString& error);

    ProgresoAtomico progreso_;
    std::jthread hilo_;
    bool enCurso_ = false;
};

}  // namespace quinteva::ui
