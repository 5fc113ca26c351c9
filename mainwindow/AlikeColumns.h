#pragma once

#include <QGridLayout>
#include <array>

namespace calvoro {

/// A grid that would like as much width as lets three of its columns be alike. With the same stretch each
/// they then are, however wide the grid becomes; where it gets less, each column keeps what it needs.
class AlikeColumns : public QGridLayout {
public:
    explicit AlikeColumns(std::array<int, 3> columns);

    QSize sizeHint() const override;

private:
    int Missing() const;

    std::array<int, 3> columns_;
};

}  // namespace calvoro
