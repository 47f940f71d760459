#include <mqPostCommon/params/animation.h>

CmqpAnimateParam::CmqpAnimateParam() = default;
CmqpAnimateParam::CmqpAnimateParam(const CmqpAnimateParam&) = default;
CmqpAnimateParam& CmqpAnimateParam::operator=(const CmqpAnimateParam&) = default;
CmqpAnimateParam::~CmqpAnimateParam() = default;

int CmqpAnimateParam::SetNFrames(int frames) noexcept {
  if (frames < kLeastFrames || frames > kMostFrames) {
    return 0;
  }
  m_nFrames = frames;
  return 1;
}
