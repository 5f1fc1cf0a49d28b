#pragma once

#include "model/livedata.h"
#include "pages/channellabels.h"
#include "pages/livepage.h"

#include <array>
#include <memory>
#include <vector>

namespace Ui {
class UnbalVectorPage;
}

/// Phasor diagram of the fundamentals: all voltages, all currents, or voltage and current of one phase, with their
/// magnitudes and angles.
class UnbalVectorPage : public LivePage
{
    Q_OBJECT

public:
    explicit UnbalVectorPage(const LiveData &data, QWidget *parent = nullptr);
    ~UnbalVectorPage() override;

    /// 1 voltages, 2 currents, 3 to 5 one phase.
    int selector() const { return m_selector; }
    int selectorMaximum() const { return m_maximum; }

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goUnbalanMain();

private:
    static constexpr int kPlaces = 3; // phasors shown at a time, at most

    /// One phasor of the diagram and of the labels beside it.
    struct Vector
    {
        bool current; // of a current, else of a voltage
        int phase; // 0 to 2
    };

    void nextSelector();
    void set_vectorFlag();
    void initvectorFlag();
    std::vector<Vector> vectors() const;
    bool showsSequences() const;
    void showTitle();
    void showCurParams();
    void showChart();

    const LiveData &m_data;
    std::unique_ptr<Ui::UnbalVectorPage> m_ui;
    using Places = std::array<QLabel *, kPlaces>;
    Places labels(const char *pattern) const;
    Places m_captions;
    Places m_values;
    Places m_angleCaptions;
    Places m_angles;
    int m_selector = 1;
    int m_maximum = 5;
};
