#include "ui/trying/TestSheet.h"

#include "feedback/GestureTestSession.h"

namespace kinesta {

TestSheet::TestSheet(const WindowParts& parts, QWidget* parent) : QDialog(parent), m_parts(parts) {
    m_parts.testSession.begin();
}

TestSheet::~TestSheet() { m_parts.testSession.end(); }

void TestSheet::gestureRecognized(const DetectedGesture& /*gesture*/) {}

}  // namespace kinesta
