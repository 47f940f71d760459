// Sizes of classes and places of members, which code that was compiled against a header relies on.
// They are the same on both platforms. A change of one breaks that code.
#include <cstddef>

#include <mqPostCommon/mqPostCommon.h>

// The classes have virtual functions, but no virtual bases: the places are fixed all the same.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

// clang-format off

static_assert(sizeof(CmqPostGraphParam) == 960);
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
static_assert(offsetof(CmqPostGraphParam, m_nHost19) == 464);
static_assert(offsetof(CmqPostGraphParam, m_strHost20) == 472);
static_assert(offsetof(CmqPostGraphParam, m_ViewMatrix) == 568);
static_assert(offsetof(CmqPostGraphParam, m_nHost22) == 696);
static_assert(offsetof(CmqPostGraphParam, m_nDynamicOption) == 708);
static_assert(offsetof(CmqPostGraphParam, m_nHost24) == 712);
static_assert(offsetof(CmqPostGraphParam, m_nHost25) == 716);
static_assert(offsetof(CmqPostGraphParam, m_dHost26) == 720);
static_assert(offsetof(CmqPostGraphParam, m_nHost27) == 736);
static_assert(offsetof(CmqPostGraphParam, m_nYUnitFlag) == 740);
static_assert(offsetof(CmqPostGraphParam, m_nHost29) == 744);
static_assert(offsetof(CmqPostGraphParam, m_nHost30) == 752);
static_assert(offsetof(CmqPostGraphParam, m_nHost31) == 756);
static_assert(offsetof(CmqPostGraphParam, m_nFrequencyResponseFlag) == 760);
static_assert(offsetof(CmqPostGraphParam, m_nFrequencyResponseMode) == 764);
static_assert(offsetof(CmqPostGraphParam, m_nHost34) == 768);
static_assert(offsetof(CmqPostGraphParam, m_dHost35) == 784);
static_assert(offsetof(CmqPostGraphParam, m_strHost36) == 792);
static_assert(offsetof(CmqPostGraphParam, m_nHost37) == 888);
static_assert(offsetof(CmqPostGraphParam, m_n64Host37) == 896);
static_assert(offsetof(CmqPostGraphParam, m_mapHost38) == 904);
static_assert(offsetof(CmqPostGraphParam, m_nHost39) == 952);

static_assert(sizeof(CmqGraphAxis) == 16);
static_assert(offsetof(CmqGraphAxis, m_nQuantityType) == 0);
static_assert(offsetof(CmqGraphAxis, m_nComponent) == 4);
static_assert(offsetof(CmqGraphAxis, m_nUnit) == 8);
static_assert(offsetof(CmqGraphAxis, m_nSensor) == 12);

static_assert(sizeof(CmqEquationVariable) == 120);
static_assert(offsetof(CmqEquationVariable, m_strName) == 8);
static_assert(offsetof(CmqEquationVariable, m_nResultType) == 104);
static_assert(offsetof(CmqEquationVariable, m_nComponent) == 108);
static_assert(offsetof(CmqEquationVariable, m_dCoefficient) == 112);

static_assert(sizeof(CmqResultCompsEqnVarsList) == 400);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listStressNames) == 8);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listBeamStressNames) == 48);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listStrainNames) == 88);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listDisplacementNames) == 128);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listThermalNames) == 168);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nAnalysisType) == 208);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nHost7) == 212);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nLookupOption) == 228);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_strEquation) == 232);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nCoefficientsFlag) == 328);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listVariableNames) == 336);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_arrCoefficients) == 376);

static_assert(sizeof(CmqEquationPlotParam) == 440);
static_assert(offsetof(CmqEquationPlotParam, m_strEquation) == 8);
static_assert(offsetof(CmqEquationPlotParam, m_nCoefficientsFlag) == 104);
static_assert(offsetof(CmqEquationPlotParam, m_strHost3) == 112);
static_assert(offsetof(CmqEquationPlotParam, m_listVariables) == 304);
static_assert(offsetof(CmqEquationPlotParam, m_strDisplayEquation) == 344);

static_assert(sizeof(mqp::PlotMembers) == 1456);
static_assert(offsetof(mqp::PlotMembers, m_strPlotName) == 0);
static_assert(offsetof(mqp::PlotMembers, m_nAnalysisType) == 96);
static_assert(offsetof(mqp::PlotMembers, m_nResultType) == 100);
static_assert(offsetof(mqp::PlotMembers, m_nComponent) == 104);
static_assert(offsetof(mqp::PlotMembers, m_nHost5) == 108);
static_assert(offsetof(mqp::PlotMembers, m_nHost6) == 112);
static_assert(offsetof(mqp::PlotMembers, m_nVariant) == 116);
static_assert(offsetof(mqp::PlotMembers, m_nHost8) == 120);
static_assert(offsetof(mqp::PlotMembers, m_nDeformScaleMode) == 124);
static_assert(offsetof(mqp::PlotMembers, m_fDeformScaleFactor1) == 128);
static_assert(offsetof(mqp::PlotMembers, m_fDeformScaleFactor0) == 132);
static_assert(offsetof(mqp::PlotMembers, m_nUnitIndex) == 136);
static_assert(offsetof(mqp::PlotMembers, m_nHost12) == 140);
static_assert(offsetof(mqp::PlotMembers, m_nFailureCriterion) == 152);
static_assert(offsetof(mqp::PlotMembers, m_nHost14) == 156);
static_assert(offsetof(mqp::PlotMembers, m_dHost15) == 160);
static_assert(offsetof(mqp::PlotMembers, m_dHost16) == 168);
static_assert(offsetof(mqp::PlotMembers, m_nCriterionOptions) == 192);
static_assert(offsetof(mqp::PlotMembers, m_dHost18) == 200);
static_assert(offsetof(mqp::PlotMembers, m_nHost19) == 216);
static_assert(offsetof(mqp::PlotMembers, m_strHost20) == 224);
static_assert(offsetof(mqp::PlotMembers, m_nHost21) == 416);
static_assert(offsetof(mqp::PlotMembers, m_ViewMatrix) == 424);
static_assert(offsetof(mqp::PlotMembers, m_nBodyId) == 552);
static_assert(offsetof(mqp::PlotMembers, m_nEnvelopeFlag) == 556);
static_assert(offsetof(mqp::PlotMembers, m_nHost25) == 560);
static_assert(offsetof(mqp::PlotMembers, m_n64Host26) == 584);
static_assert(offsetof(mqp::PlotMembers, m_nHost27) == 592);
static_assert(offsetof(mqp::PlotMembers, m_nHost28) == 608);
static_assert(offsetof(mqp::PlotMembers, m_dHost29) == 648);
static_assert(offsetof(mqp::PlotMembers, m_nHost30) == 656);
static_assert(offsetof(mqp::PlotMembers, m_arrHost31) == 672);
static_assert(offsetof(mqp::PlotMembers, m_arrHost32) == 696);
static_assert(offsetof(mqp::PlotMembers, m_nHost33) == 720);
static_assert(offsetof(mqp::PlotMembers, m_dHost34) == 728);
static_assert(offsetof(mqp::PlotMembers, m_n64Host35) == 736);
static_assert(offsetof(mqp::PlotMembers, m_EquationPlot) == 752);
static_assert(offsetof(mqp::PlotMembers, m_nHost37) == 1192);
static_assert(offsetof(mqp::PlotMembers, m_strHost38) == 1208);
static_assert(offsetof(mqp::PlotMembers, m_strHost39) == 1304);
static_assert(offsetof(mqp::PlotMembers, m_arrHost40) == 1400);
static_assert(offsetof(mqp::PlotMembers, m_nHost41) == 1448);

static_assert(sizeof(CmqpAnimateParam) == 136);
static_assert(offsetof(CmqpAnimateParam, m_nHost1) == 8);
static_assert(offsetof(CmqpAnimateParam, m_nFrames) == 12);
static_assert(offsetof(CmqpAnimateParam, m_nHost3) == 16);
static_assert(offsetof(CmqpAnimateParam, m_nHost4) == 20);
static_assert(offsetof(CmqpAnimateParam, m_nHost5) == 24);
static_assert(offsetof(CmqpAnimateParam, m_strHost6) == 32);
static_assert(offsetof(CmqpAnimateParam, m_n64Host7) == 128);

static_assert(sizeof(CVekPostListParam) == 512);
static_assert(offsetof(CVekPostListParam, m_strStudyPath) == 0);
static_assert(offsetof(CVekPostListParam, m_nAnalysisType) == 96);
static_assert(offsetof(CVekPostListParam, m_nResultType) == 100);
static_assert(offsetof(CVekPostListParam, m_nComponent) == 104);
static_assert(offsetof(CVekPostListParam, m_nHost5) == 108);
static_assert(offsetof(CVekPostListParam, m_nHost6) == 112);
static_assert(offsetof(CVekPostListParam, m_nVariant) == 116);
static_assert(offsetof(CVekPostListParam, m_nUnitIndex) == 120);
static_assert(offsetof(CVekPostListParam, m_nHost9) == 124);
static_assert(offsetof(CVekPostListParam, m_nHost10) == 128);
static_assert(offsetof(CVekPostListParam, m_nListSetFlag) == 132);
static_assert(offsetof(CVekPostListParam, m_nHost12) == 136);
static_assert(offsetof(CVekPostListParam, m_nHost13) == 140);
static_assert(offsetof(CVekPostListParam, m_dHost14) == 144);
static_assert(offsetof(CVekPostListParam, m_nHost15) == 152);
static_assert(offsetof(CVekPostListParam, m_nListSetKind) == 160);
static_assert(offsetof(CVekPostListParam, m_nTitleSwitch) == 164);
static_assert(offsetof(CVekPostListParam, m_nHost18) == 168);
static_assert(offsetof(CVekPostListParam, m_strHost19) == 176);
static_assert(offsetof(CVekPostListParam, m_nHost20) == 272);
static_assert(offsetof(CVekPostListParam, m_ViewMatrix) == 280);
static_assert(offsetof(CVekPostListParam, m_nHost22) == 408);
static_assert(offsetof(CVekPostListParam, m_nUnitOption) == 420);
static_assert(offsetof(CVekPostListParam, m_arrHost23) == 424);
static_assert(offsetof(CVekPostListParam, m_nHost24) == 472);

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

static_assert(sizeof(CmqpMaterialData) == 760);
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
static_assert(offsetof(CmqpMaterialData, m_strExtraText) == 640);
static_assert(offsetof(CmqpMaterialData, m_nBodyID) == 736);
static_assert(offsetof(CmqpMaterialData, m_nTreatAsMaterial) == 740);
static_assert(offsetof(CmqpMaterialData, m_nDefaultFailureCriteria) == 744);
static_assert(offsetof(CmqpMaterialData, m_nSecondaryID) == 748);
static_assert(offsetof(CmqpMaterialData, m_nReserved) == 752);

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

static_assert(sizeof(mqp::AsmCompMembers) == 904);
static_assert(offsetof(mqp::AsmCompMembers, m_nCompID) == 0);
static_assert(offsetof(mqp::AsmCompMembers, m_nFirstElem) == 4);
static_assert(offsetof(mqp::AsmCompMembers, m_nLastElem) == 8);
static_assert(offsetof(mqp::AsmCompMembers, m_Color) == 12);
static_assert(offsetof(mqp::AsmCompMembers, m_BottomColor) == 28);
static_assert(offsetof(mqp::AsmCompMembers, m_bHidden) == 44);
static_assert(offsetof(mqp::AsmCompMembers, m_strCompName) == 48);
static_assert(offsetof(mqp::AsmCompMembers, m_strBodyName) == 144);
static_assert(offsetof(mqp::AsmCompMembers, m_nBodyID) == 240);
static_assert(offsetof(mqp::AsmCompMembers, m_nVisIndexBase) == 244);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost11) == 248);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost11) == 280);
static_assert(offsetof(mqp::AsmCompMembers, m_bOwnsMeshData) == 312);
static_assert(offsetof(mqp::AsmCompMembers, m_arrSectProp) == 320);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost14) == 344);
static_assert(offsetof(mqp::AsmCompMembers, m_strExtra) == 352);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost16) == 448);
static_assert(offsetof(mqp::AsmCompMembers, m_pHost16) == 464);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost17) == 512);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost18) == 584);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost19) == 656);
static_assert(offsetof(mqp::AsmCompMembers, m_pHost20) == 768);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost20) == 784);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost20) == 808);
static_assert(offsetof(mqp::AsmCompMembers, m_bOwnsMeshData2) == 824);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost22) == 828);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost23) == 848);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost24) == 872);
static_assert(offsetof(mqp::AsmCompMembers, m_bTempHidden) == 896);

static_assert(sizeof(CDspAsmComp) == 936);
static_assert(offsetof(CDspAsmComp, m_arrFlipData) == 904);
static_assert(offsetof(CDspAsmComp, m_nHost27) == 928);

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

static_assert(sizeof(CmqPostDataParam) == 1464);
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
static_assert(sizeof(CString) == 96);
static_assert(sizeof(COGLColor) == 16);
static_assert(sizeof(mqp::RecordField) == 32);
static_assert(sizeof(CArray<int, int>) == 24);
static_assert(sizeof(mqp::ViewMatrix) == 128);
// clang-format on
