#include <mqPostCommon/mqPostCommon.h>
#include <mqPostCommon/platform/comm_funcs.h>

int main() {
  const CmqPostGraphParam graph;
  const bool counts = vekPostCommonGetComponentTotal(0, 2, 0, 0, 0, 0, 0, 0, 0) == 12;
  const bool names = !vekPostCommonGetComponentName(0, 2, 0, 9, 0, 0).IsEmpty();
  const bool graphs = graph.GetFolderName() == MQ_TEXT("Response");
  const CDspAsmComp component(7, 100, 199, COGLColor(1.0F, 0.0F, 0.0F, 1.0F), 0);
  const bool colours = component.m_Color == COGLColor(1.0F, 0.0F, 0.0F, 1.0F);
  CString text;
  const bool texts = mqpLoadString(text, 54591) == 1 && text == MQ_TEXT("SX: stress along X");
  return counts && names && graphs && colours && texts ? 0 : 1;
}
