#pragma once

// A pair of small arrows that stand beside a date box. They hold no value: each press is one step.

#include <QWidget>

class QToolButton;

namespace calvoro {

class SpinArrows : public QWidget {
    Q_OBJECT

public:
    explicit SpinArrows(QWidget* parent);

    void SetAccessibleNames(const QString& both, const QString& up, const QString& down);

    /// Ends the repetition of an arrow that is still held down.
    void Release();

Q_SIGNALS:
    /// value  1 for the upper arrow, -1 for the lower one
    void Stepped(int value);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    QToolButton* MakeArrow(Qt::ArrowType type, int value);

    QToolButton* up_;
    QToolButton* down_;
};

}  // namespace calvoro
