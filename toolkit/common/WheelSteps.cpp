#include <qt3/WheelSteps.h>

namespace qt3 {

int WheelSteps::take(const void* owner, int delta) {
    constexpr int notch = 120;
    if (m_pOwner != owner) {
        m_pOwner = owner;
        m_fNotches = 0.0f;
    }
    const int wholeNotches = delta / notch; // 60 twice is no step
    m_fNotches += static_cast<float>(wholeNotches);
    const int steps = static_cast<int>(m_fNotches);
    m_fNotches -= static_cast<float>(steps);
    return steps;
}

} // namespace qt3
