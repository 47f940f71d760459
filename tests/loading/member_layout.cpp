// Sizes of classes and places of members, which code that was compiled against a header relies on.
// They are the same on both platforms. A change of one breaks that code.
#include <cstddef>

#include <mqPostCommon/mqPostCommon.h>

// The classes have virtual functions, but no virtual bases: the places are fixed all the same.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

// clang-format off

static_assert(sizeof(CmqPostGraphParam) == 1080);
static_assert(offsetof(CmqPostGraphParam, m_nAnalysisType) == 8);
static_assert(offsetof(CmqPostGraphParam, m_nResultType) == 12);
static_assert(offsetof(CmqPostGraphParam, m_nHost3) == 16);
static_assert(offsetof(CmqPostGraphParam, m_nResultOption) == 20);
static_assert(offsetof(CmqPostGraphParam, m_nHost5) == 24);
static_assert(offsetof(CmqPostGraphParam, m_nHost6) == 32);
static_assert(offsetof(CmqPostGraphParam, m_nHost7) == 36);
static_assert(offsetof(CmqPostGraphParam, m_XAxis) == 44);
static_assert(offsetof(CmqPostGraphParam, m_YAxis) == 60);
static_assert(offsetof(CmqPostGraphParam, m_nHost16) == 76);
static_assert(offsetof(CmqPostGraphParam, m_nHost17) == 100);
static_assert(offsetof(CmqPostGraphParam, m_strHost18) == 176);
static_assert(offsetof(CmqPostGraphParam, m_nHost19) == 536);
static_assert(offsetof(CmqPostGraphParam, m_strHost20) == 544);
static_assert(offsetof(CmqPostGraphParam, m_ViewMatrix) == 664);
static_assert(offsetof(CmqPostGraphParam, m_nHost22) == 792);
static_assert(offsetof(CmqPostGraphParam, m_nDynamicOption) == 804);
static_assert(offsetof(CmqPostGraphParam, m_nHost24) == 808);
static_assert(offsetof(CmqPostGraphParam, m_nHost25) == 812);
static_assert(offsetof(CmqPostGraphParam, m_dHost26) == 816);
static_assert(offsetof(CmqPostGraphParam, m_nHost27) == 832);
static_assert(offsetof(CmqPostGraphParam, m_nYUnitFlag) == 836);
static_assert(offsetof(CmqPostGraphParam, m_nHost29) == 840);
static_assert(offsetof(CmqPostGraphParam, m_nHost30) == 848);
static_assert(offsetof(CmqPostGraphParam, m_nHost31) == 852);
static_assert(offsetof(CmqPostGraphParam, m_nFrequencyResponseFlag) == 856);
static_assert(offsetof(CmqPostGraphParam, m_nFrequencyResponseMode) == 860);
static_assert(offsetof(CmqPostGraphParam, m_nHost34) == 864);
static_assert(offsetof(CmqPostGraphParam, m_dHost35) == 880);
static_assert(offsetof(CmqPostGraphParam, m_strHost36) == 888);
static_assert(offsetof(CmqPostGraphParam, m_nHost37) == 1008);
static_assert(offsetof(CmqPostGraphParam, m_n64Host37) == 1016);
static_assert(offsetof(CmqPostGraphParam, m_mapHost38) == 1024);
static_assert(offsetof(CmqPostGraphParam, m_nHost39) == 1072);

static_assert(sizeof(CmqGraphAxis) == 16);
static_assert(offsetof(CmqGraphAxis, m_nQuantityType) == 0);
static_assert(offsetof(CmqGraphAxis, m_nComponent) == 4);
static_assert(offsetof(CmqGraphAxis, m_nUnit) == 8);
static_assert(offsetof(CmqGraphAxis, m_nSensor) == 12);

static_assert(sizeof(CmqEquationVariable) == 144);
static_assert(offsetof(CmqEquationVariable, m_strName) == 8);
static_assert(offsetof(CmqEquationVariable, m_nResultType) == 128);
static_assert(offsetof(CmqEquationVariable, m_nComponent) == 132);
static_assert(offsetof(CmqEquationVariable, m_dCoefficient) == 136);

static_assert(sizeof(CmqResultCompsEqnVarsList) == 328);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listStressNames) == 8);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listBeamStressNames) == 32);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listStrainNames) == 56);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listDisplacementNames) == 80);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listThermalNames) == 104);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nAnalysisType) == 128);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nHost7) == 132);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nLookupOption) == 148);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_strEquation) == 152);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nCoefficientsFlag) == 272);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listVariableNames) == 280);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_arrCoefficients) == 304);

static_assert(sizeof(CmqEquationPlotParam) == 520);
static_assert(offsetof(CmqEquationPlotParam, m_strEquation) == 8);
static_assert(offsetof(CmqEquationPlotParam, m_nCoefficientsFlag) == 128);
static_assert(offsetof(CmqEquationPlotParam, m_strHost3) == 136);
static_assert(offsetof(CmqEquationPlotParam, m_listVariables) == 376);
static_assert(offsetof(CmqEquationPlotParam, m_strDisplayEquation) == 400);

static_assert(sizeof(mqp::PlotMembers) == 1656);
static_assert(offsetof(mqp::PlotMembers, m_strPlotName) == 0);
static_assert(offsetof(mqp::PlotMembers, m_nAnalysisType) == 120);
static_assert(offsetof(mqp::PlotMembers, m_nResultType) == 124);
static_assert(offsetof(mqp::PlotMembers, m_nComponent) == 128);
static_assert(offsetof(mqp::PlotMembers, m_nHost5) == 132);
static_assert(offsetof(mqp::PlotMembers, m_nHost6) == 136);
static_assert(offsetof(mqp::PlotMembers, m_nVariant) == 140);
static_assert(offsetof(mqp::PlotMembers, m_nHost8) == 144);
static_assert(offsetof(mqp::PlotMembers, m_nDeformScaleMode) == 148);
static_assert(offsetof(mqp::PlotMembers, m_fDeformScaleFactor1) == 152);
static_assert(offsetof(mqp::PlotMembers, m_fDeformScaleFactor0) == 156);
static_assert(offsetof(mqp::PlotMembers, m_nUnitIndex) == 160);
static_assert(offsetof(mqp::PlotMembers, m_nHost12) == 164);
static_assert(offsetof(mqp::PlotMembers, m_nFailureCriterion) == 176);
static_assert(offsetof(mqp::PlotMembers, m_nHost14) == 180);
static_assert(offsetof(mqp::PlotMembers, m_dHost15) == 184);
static_assert(offsetof(mqp::PlotMembers, m_dHost16) == 192);
static_assert(offsetof(mqp::PlotMembers, m_nCriterionOptions) == 216);
static_assert(offsetof(mqp::PlotMembers, m_dHost18) == 224);
static_assert(offsetof(mqp::PlotMembers, m_nHost19) == 240);
static_assert(offsetof(mqp::PlotMembers, m_strHost20) == 248);
static_assert(offsetof(mqp::PlotMembers, m_nHost21) == 488);
static_assert(offsetof(mqp::PlotMembers, m_ViewMatrix) == 496);
static_assert(offsetof(mqp::PlotMembers, m_nBodyId) == 624);
static_assert(offsetof(mqp::PlotMembers, m_nEnvelopeFlag) == 628);
static_assert(offsetof(mqp::PlotMembers, m_nHost25) == 632);
static_assert(offsetof(mqp::PlotMembers, m_n64Host26) == 656);
static_assert(offsetof(mqp::PlotMembers, m_nHost27) == 664);
static_assert(offsetof(mqp::PlotMembers, m_nHost28) == 680);
static_assert(offsetof(mqp::PlotMembers, m_dHost29) == 720);
static_assert(offsetof(mqp::PlotMembers, m_nHost30) == 728);
static_assert(offsetof(mqp::PlotMembers, m_arrHost31) == 744);
static_assert(offsetof(mqp::PlotMembers, m_arrHost32) == 768);
static_assert(offsetof(mqp::PlotMembers, m_nHost33) == 792);
static_assert(offsetof(mqp::PlotMembers, m_dHost34) == 800);
static_assert(offsetof(mqp::PlotMembers, m_n64Host35) == 808);
static_assert(offsetof(mqp::PlotMembers, m_EquationPlot) == 824);
static_assert(offsetof(mqp::PlotMembers, m_nHost37) == 1344);
static_assert(offsetof(mqp::PlotMembers, m_strHost38) == 1360);
static_assert(offsetof(mqp::PlotMembers, m_strHost39) == 1480);
static_assert(offsetof(mqp::PlotMembers, m_arrHost40) == 1600);
static_assert(offsetof(mqp::PlotMembers, m_nHost41) == 1648);

static_assert(sizeof(CmqpAnimateParam) == 160);
static_assert(offsetof(CmqpAnimateParam, m_nHost1) == 8);
static_assert(offsetof(CmqpAnimateParam, m_nFrames) == 12);
static_assert(offsetof(CmqpAnimateParam, m_nHost3) == 16);
static_assert(offsetof(CmqpAnimateParam, m_nHost4) == 20);
static_assert(offsetof(CmqpAnimateParam, m_nHost5) == 24);
static_assert(offsetof(CmqpAnimateParam, m_strHost6) == 32);
static_assert(offsetof(CmqpAnimateParam, m_n64Host7) == 152);

static_assert(sizeof(CVekPostListParam) == 560);
static_assert(offsetof(CVekPostListParam, m_strStudyPath) == 0);
static_assert(offsetof(CVekPostListParam, m_nAnalysisType) == 120);
static_assert(offsetof(CVekPostListParam, m_nResultType) == 124);
static_assert(offsetof(CVekPostListParam, m_nComponent) == 128);
static_assert(offsetof(CVekPostListParam, m_nHost5) == 132);
static_assert(offsetof(CVekPostListParam, m_nHost6) == 136);
static_assert(offsetof(CVekPostListParam, m_nVariant) == 140);
static_assert(offsetof(CVekPostListParam, m_nUnitIndex) == 144);
static_assert(offsetof(CVekPostListParam, m_nHost9) == 148);
static_assert(offsetof(CVekPostListParam, m_nHost10) == 152);
static_assert(offsetof(CVekPostListParam, m_nListSetFlag) == 156);
static_assert(offsetof(CVekPostListParam, m_nHost12) == 160);
static_assert(offsetof(CVekPostListParam, m_nHost13) == 164);
static_assert(offsetof(CVekPostListParam, m_dHost14) == 168);
static_assert(offsetof(CVekPostListParam, m_nHost15) == 176);
static_assert(offsetof(CVekPostListParam, m_nListSetKind) == 184);
static_assert(offsetof(CVekPostListParam, m_nTitleSwitch) == 188);
static_assert(offsetof(CVekPostListParam, m_nHost18) == 192);
static_assert(offsetof(CVekPostListParam, m_strHost19) == 200);
static_assert(offsetof(CVekPostListParam, m_nHost20) == 320);
static_assert(offsetof(CVekPostListParam, m_ViewMatrix) == 328);
static_assert(offsetof(CVekPostListParam, m_nHost22) == 456);
static_assert(offsetof(CVekPostListParam, m_nUnitOption) == 468);
static_assert(offsetof(CVekPostListParam, m_arrHost23) == 472);
static_assert(offsetof(CVekPostListParam, m_nHost24) == 520);

static_assert(sizeof(CVekPostListPair) == 16);
static_assert(offsetof(CVekPostListPair, m_nFirst) == 8);
static_assert(offsetof(CVekPostListPair, m_nSecond) == 12);

static_assert(sizeof(CVekIntPair) == 16);
static_assert(offsetof(CVekIntPair, m_nFirst) == 8);
static_assert(offsetof(CVekIntPair, m_nSecond) == 12);

static_assert(sizeof(CmqTemperatureCurve) == 64);
static_assert(offsetof(CmqTemperatureCurve, m_nPoints) == 8);
static_assert(offsetof(CmqTemperatureCurve, m_vecX) == 16);
static_assert(offsetof(CmqTemperatureCurve, m_vecY) == 40);

static_assert(sizeof(CmqpMaterialData) == 808);
static_assert(offsetof(CmqpMaterialData, m_nCount) == 8);
static_assert(offsetof(CmqpMaterialData, m_nMaterialSource) == 12);
static_assert(offsetof(CmqpMaterialData, m_nDefinedUnits) == 16);
static_assert(offsetof(CmqpMaterialData, m_bHasSIGYLD) == 20);
static_assert(offsetof(CmqpMaterialData, m_dSIGYLD) == 24);
static_assert(offsetof(CmqpMaterialData, m_bSIGYLDTempDepend) == 32);
static_assert(offsetof(CmqpMaterialData, m_SIGYLDTempCurve) == 40);
static_assert(offsetof(CmqpMaterialData, m_bHasSIGXT) == 104);
static_assert(offsetof(CmqpMaterialData, m_dSIGXT) == 112);
static_assert(offsetof(CmqpMaterialData, m_bSIGXTTempDepend) == 120);
static_assert(offsetof(CmqpMaterialData, m_SIGXTTempCurve) == 128);
static_assert(offsetof(CmqpMaterialData, m_bHasSIGXC) == 192);
static_assert(offsetof(CmqpMaterialData, m_dSIGXC) == 200);
static_assert(offsetof(CmqpMaterialData, m_bSIGXCTempDepend) == 208);
static_assert(offsetof(CmqpMaterialData, m_SIGXCTempCurve) == 216);
static_assert(offsetof(CmqpMaterialData, m_bHasSIGYT) == 280);
static_assert(offsetof(CmqpMaterialData, m_dSIGYT) == 288);
static_assert(offsetof(CmqpMaterialData, m_bSIGYTTempDepend) == 296);
static_assert(offsetof(CmqpMaterialData, m_SIGYTTempCurve) == 304);
static_assert(offsetof(CmqpMaterialData, m_bHasSIGYC) == 368);
static_assert(offsetof(CmqpMaterialData, m_dSIGYC) == 376);
static_assert(offsetof(CmqpMaterialData, m_bSIGYCTempDepend) == 384);
static_assert(offsetof(CmqpMaterialData, m_SIGYCTempCurve) == 392);
static_assert(offsetof(CmqpMaterialData, m_bHasSIGXY) == 456);
static_assert(offsetof(CmqpMaterialData, m_dSIGXY) == 464);
static_assert(offsetof(CmqpMaterialData, m_bSIGXYTempDepend) == 472);
static_assert(offsetof(CmqpMaterialData, m_SIGXYTempCurve) == 480);
static_assert(offsetof(CmqpMaterialData, m_strMaterialName) == 544);
static_assert(offsetof(CmqpMaterialData, m_strExtraText) == 664);
static_assert(offsetof(CmqpMaterialData, m_nBodyID) == 784);
static_assert(offsetof(CmqpMaterialData, m_nTreatAsMaterial) == 788);
static_assert(offsetof(CmqpMaterialData, m_nDefaultFailureCriteria) == 792);
static_assert(offsetof(CmqpMaterialData, m_nSecondaryID) == 796);
static_assert(offsetof(CmqpMaterialData, m_nReserved) == 800);

static_assert(sizeof(CmqpMaterialDataList) == 24);
static_assert(offsetof(CmqpMaterialDataList, m_arrMaterials) == 0);

static_assert(sizeof(CMqNodalResultValuesOfElement) == 96);
static_assert(offsetof(CMqNodalResultValuesOfElement, m_nNodeIDs) == 8);
static_assert(offsetof(CMqNodalResultValuesOfElement, m_fValues) == 48);
static_assert(offsetof(CMqNodalResultValuesOfElement, m_nNodes) == 88);

static_assert(sizeof(CMqStressTensorValuesOfAllNodesOfElement) == 440);
static_assert(offsetof(CMqStressTensorValuesOfAllNodesOfElement, m_nNodes) == 8);
static_assert(offsetof(CMqStressTensorValuesOfAllNodesOfElement, m_nNodeIDs) == 12);
static_assert(offsetof(CMqStressTensorValuesOfAllNodesOfElement, m_fStressTensor) == 52);
static_assert(offsetof(CMqStressTensorValuesOfAllNodesOfElement, m_fStressTensor2) == 292);

static_assert(sizeof(CShellEntityID_FlipData) == 12);
static_assert(offsetof(CShellEntityID_FlipData, m_nHost1) == 0);
static_assert(offsetof(CShellEntityID_FlipData, m_nHost2) == 4);
static_assert(offsetof(CShellEntityID_FlipData, m_nHost3) == 8);

static_assert(sizeof(mqp::AsmCompMembers) == 976);
static_assert(offsetof(mqp::AsmCompMembers, m_nCompID) == 0);
static_assert(offsetof(mqp::AsmCompMembers, m_nFirstElem) == 4);
static_assert(offsetof(mqp::AsmCompMembers, m_nLastElem) == 8);
static_assert(offsetof(mqp::AsmCompMembers, m_Color) == 12);
static_assert(offsetof(mqp::AsmCompMembers, m_BottomColor) == 28);
static_assert(offsetof(mqp::AsmCompMembers, m_bHidden) == 44);
static_assert(offsetof(mqp::AsmCompMembers, m_strCompName) == 48);
static_assert(offsetof(mqp::AsmCompMembers, m_strBodyName) == 168);
static_assert(offsetof(mqp::AsmCompMembers, m_nBodyID) == 288);
static_assert(offsetof(mqp::AsmCompMembers, m_nVisIndexBase) == 292);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost11) == 296);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost11) == 328);
static_assert(offsetof(mqp::AsmCompMembers, m_bOwnsMeshData) == 360);
static_assert(offsetof(mqp::AsmCompMembers, m_arrSectProp) == 368);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost14) == 392);
static_assert(offsetof(mqp::AsmCompMembers, m_strExtra) == 400);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost16) == 520);
static_assert(offsetof(mqp::AsmCompMembers, m_pHost16) == 536);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost17) == 584);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost18) == 656);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost19) == 728);
static_assert(offsetof(mqp::AsmCompMembers, m_pHost20) == 840);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost20) == 856);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost20) == 880);
static_assert(offsetof(mqp::AsmCompMembers, m_bOwnsMeshData2) == 896);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost22) == 900);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost23) == 920);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost24) == 944);
static_assert(offsetof(mqp::AsmCompMembers, m_bTempHidden) == 968);

static_assert(sizeof(CDspAsmComp) == 1008);
static_assert(offsetof(CDspAsmComp, m_arrFlipData) == 976);
static_assert(offsetof(CDspAsmComp, m_nHost27) == 1000);

static_assert(sizeof(CDspAsmCompList) == 48);
static_assert(offsetof(CDspAsmCompList, m_arrComps) == 0);
static_assert(offsetof(CDspAsmCompList, m_arrCompValues) == 24);

static_assert(sizeof(CDspAsmCompIndex) == 16);  // of its one member, which is private
static_assert(alignof(CDspAsmCompIndex) == 8);

static_assert(sizeof(CSTLVertex) == 12);
static_assert(offsetof(CSTLVertex, m_fX) == 0);
static_assert(offsetof(CSTLVertex, m_fY) == 4);
static_assert(offsetof(CSTLVertex, m_fZ) == 8);

static_assert(sizeof(CSTLFacet) == 40);
static_assert(offsetof(CSTLFacet, m_Normal) == 0);
static_assert(offsetof(CSTLFacet, m_nVertices) == 12);
static_assert(offsetof(CSTLFacet, m_vecVertices) == 16);

static_assert(sizeof(CmqPostDataParam) == 1664);
static_assert(offsetof(CmqPostDataParam, m_strPlotName) == 8);
static_assert(offsetof(CDspAsmComp, m_nCompID) == 0);

// Constant tables: a program may hold a copy of their bytes.
static_assert(sizeof(g_UnitLists) == 17280);
static_assert(sizeof(g_strMatPropKeywords) == 2904);
static_assert(sizeof(g_strMatPropUnits) == 34848);
static_assert(sizeof(g_strMatModelKeywords1) == 528);
static_assert(sizeof(g_strMatModelKeywords15) == 984);
static_assert(sizeof(mqp::MaterialModel) == 16);

// What crosses the interface by value.
static_assert(sizeof(CString) == 120);
static_assert(sizeof(COGLColor) == 16);
static_assert(sizeof(mqp::RecordField) == 32);
static_assert(sizeof(CArray<int, int>) == 24);
static_assert(sizeof(mqp::ViewMatrix) == 128);
// clang-format on
