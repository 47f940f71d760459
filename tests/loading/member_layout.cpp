// Sizes of classes and places of members, which code that was compiled against a header relies on.
// They are the same on both platforms. A change of one breaks that code.
#include <cstddef>

#include <mqPostCommon/mqPostCommon.h>

// The classes have virtual functions, but no virtual bases: the places are fixed all the same.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

// clang-format off

static_assert(sizeof(CmqPostGraphParam) == 1040);
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
static_assert(offsetof(CmqPostGraphParam, m_nHost19) == 512);
static_assert(offsetof(CmqPostGraphParam, m_strHost20) == 520);
static_assert(offsetof(CmqPostGraphParam, m_ViewMatrix) == 632);
static_assert(offsetof(CmqPostGraphParam, m_nHost22) == 760);
static_assert(offsetof(CmqPostGraphParam, m_nDynamicOption) == 772);
static_assert(offsetof(CmqPostGraphParam, m_nHost24) == 776);
static_assert(offsetof(CmqPostGraphParam, m_nHost25) == 780);
static_assert(offsetof(CmqPostGraphParam, m_dHost26) == 784);
static_assert(offsetof(CmqPostGraphParam, m_nHost27) == 800);
static_assert(offsetof(CmqPostGraphParam, m_nYUnitFlag) == 804);
static_assert(offsetof(CmqPostGraphParam, m_nHost29) == 808);
static_assert(offsetof(CmqPostGraphParam, m_nHost30) == 816);
static_assert(offsetof(CmqPostGraphParam, m_nHost31) == 820);
static_assert(offsetof(CmqPostGraphParam, m_nFrequencyResponseFlag) == 824);
static_assert(offsetof(CmqPostGraphParam, m_nFrequencyResponseMode) == 828);
static_assert(offsetof(CmqPostGraphParam, m_nHost34) == 832);
static_assert(offsetof(CmqPostGraphParam, m_dHost35) == 848);
static_assert(offsetof(CmqPostGraphParam, m_strHost36) == 856);
static_assert(offsetof(CmqPostGraphParam, m_nHost37) == 968);
static_assert(offsetof(CmqPostGraphParam, m_n64Host37) == 976);
static_assert(offsetof(CmqPostGraphParam, m_mapHost38) == 984);
static_assert(offsetof(CmqPostGraphParam, m_nHost39) == 1032);

static_assert(sizeof(CmqGraphAxis) == 16);
static_assert(offsetof(CmqGraphAxis, m_nQuantityType) == 0);
static_assert(offsetof(CmqGraphAxis, m_nComponent) == 4);
static_assert(offsetof(CmqGraphAxis, m_nUnit) == 8);
static_assert(offsetof(CmqGraphAxis, m_nSensor) == 12);

static_assert(sizeof(CmqEquationVariable) == 136);
static_assert(offsetof(CmqEquationVariable, m_strName) == 8);
static_assert(offsetof(CmqEquationVariable, m_nResultType) == 120);
static_assert(offsetof(CmqEquationVariable, m_nComponent) == 124);
static_assert(offsetof(CmqEquationVariable, m_dCoefficient) == 128);

static_assert(sizeof(CmqResultCompsEqnVarsList) == 320);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listStressNames) == 8);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listBeamStressNames) == 32);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listStrainNames) == 56);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listDisplacementNames) == 80);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listThermalNames) == 104);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nAnalysisType) == 128);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nHost7) == 132);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nLookupOption) == 148);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_strEquation) == 152);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_nCoefficientsFlag) == 264);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_listVariableNames) == 272);
static_assert(offsetof(CmqResultCompsEqnVarsList, m_arrCoefficients) == 296);

static_assert(sizeof(CmqEquationPlotParam) == 488);
static_assert(offsetof(CmqEquationPlotParam, m_strEquation) == 8);
static_assert(offsetof(CmqEquationPlotParam, m_nCoefficientsFlag) == 120);
static_assert(offsetof(CmqEquationPlotParam, m_strHost3) == 128);
static_assert(offsetof(CmqEquationPlotParam, m_listVariables) == 352);
static_assert(offsetof(CmqEquationPlotParam, m_strDisplayEquation) == 376);

static_assert(sizeof(mqp::PlotMembers) == 1584);
static_assert(offsetof(mqp::PlotMembers, m_strPlotName) == 0);
static_assert(offsetof(mqp::PlotMembers, m_nAnalysisType) == 112);
static_assert(offsetof(mqp::PlotMembers, m_nResultType) == 116);
static_assert(offsetof(mqp::PlotMembers, m_nComponent) == 120);
static_assert(offsetof(mqp::PlotMembers, m_nHost5) == 124);
static_assert(offsetof(mqp::PlotMembers, m_nHost6) == 128);
static_assert(offsetof(mqp::PlotMembers, m_nVariant) == 132);
static_assert(offsetof(mqp::PlotMembers, m_nHost8) == 136);
static_assert(offsetof(mqp::PlotMembers, m_nDeformScaleMode) == 140);
static_assert(offsetof(mqp::PlotMembers, m_fDeformScaleFactor1) == 144);
static_assert(offsetof(mqp::PlotMembers, m_fDeformScaleFactor0) == 148);
static_assert(offsetof(mqp::PlotMembers, m_nUnitIndex) == 152);
static_assert(offsetof(mqp::PlotMembers, m_nHost12) == 156);
static_assert(offsetof(mqp::PlotMembers, m_nFailureCriterion) == 168);
static_assert(offsetof(mqp::PlotMembers, m_nHost14) == 172);
static_assert(offsetof(mqp::PlotMembers, m_dHost15) == 176);
static_assert(offsetof(mqp::PlotMembers, m_dHost16) == 184);
static_assert(offsetof(mqp::PlotMembers, m_nCriterionOptions) == 208);
static_assert(offsetof(mqp::PlotMembers, m_dHost18) == 216);
static_assert(offsetof(mqp::PlotMembers, m_nHost19) == 232);
static_assert(offsetof(mqp::PlotMembers, m_strHost20) == 240);
static_assert(offsetof(mqp::PlotMembers, m_nHost21) == 464);
static_assert(offsetof(mqp::PlotMembers, m_ViewMatrix) == 472);
static_assert(offsetof(mqp::PlotMembers, m_nBodyId) == 600);
static_assert(offsetof(mqp::PlotMembers, m_nEnvelopeFlag) == 604);
static_assert(offsetof(mqp::PlotMembers, m_nHost25) == 608);
static_assert(offsetof(mqp::PlotMembers, m_n64Host26) == 632);
static_assert(offsetof(mqp::PlotMembers, m_nHost27) == 640);
static_assert(offsetof(mqp::PlotMembers, m_nHost28) == 656);
static_assert(offsetof(mqp::PlotMembers, m_dHost29) == 696);
static_assert(offsetof(mqp::PlotMembers, m_nHost30) == 704);
static_assert(offsetof(mqp::PlotMembers, m_arrHost31) == 720);
static_assert(offsetof(mqp::PlotMembers, m_arrHost32) == 744);
static_assert(offsetof(mqp::PlotMembers, m_nHost33) == 768);
static_assert(offsetof(mqp::PlotMembers, m_dHost34) == 776);
static_assert(offsetof(mqp::PlotMembers, m_n64Host35) == 784);
static_assert(offsetof(mqp::PlotMembers, m_EquationPlot) == 800);
static_assert(offsetof(mqp::PlotMembers, m_nHost37) == 1288);
static_assert(offsetof(mqp::PlotMembers, m_strHost38) == 1304);
static_assert(offsetof(mqp::PlotMembers, m_strHost39) == 1416);
static_assert(offsetof(mqp::PlotMembers, m_arrHost40) == 1528);
static_assert(offsetof(mqp::PlotMembers, m_nHost41) == 1576);

static_assert(sizeof(CmqpAnimateParam) == 152);
static_assert(offsetof(CmqpAnimateParam, m_nHost1) == 8);
static_assert(offsetof(CmqpAnimateParam, m_nFrames) == 12);
static_assert(offsetof(CmqpAnimateParam, m_nHost3) == 16);
static_assert(offsetof(CmqpAnimateParam, m_nHost4) == 20);
static_assert(offsetof(CmqpAnimateParam, m_nHost5) == 24);
static_assert(offsetof(CmqpAnimateParam, m_strHost6) == 32);
static_assert(offsetof(CmqpAnimateParam, m_n64Host7) == 144);

static_assert(sizeof(CVekPostListParam) == 544);
static_assert(offsetof(CVekPostListParam, m_strStudyPath) == 0);
static_assert(offsetof(CVekPostListParam, m_nAnalysisType) == 112);
static_assert(offsetof(CVekPostListParam, m_nResultType) == 116);
static_assert(offsetof(CVekPostListParam, m_nComponent) == 120);
static_assert(offsetof(CVekPostListParam, m_nHost5) == 124);
static_assert(offsetof(CVekPostListParam, m_nHost6) == 128);
static_assert(offsetof(CVekPostListParam, m_nVariant) == 132);
static_assert(offsetof(CVekPostListParam, m_nUnitIndex) == 136);
static_assert(offsetof(CVekPostListParam, m_nHost9) == 140);
static_assert(offsetof(CVekPostListParam, m_nHost10) == 144);
static_assert(offsetof(CVekPostListParam, m_nListSetFlag) == 148);
static_assert(offsetof(CVekPostListParam, m_nHost12) == 152);
static_assert(offsetof(CVekPostListParam, m_nHost13) == 156);
static_assert(offsetof(CVekPostListParam, m_dHost14) == 160);
static_assert(offsetof(CVekPostListParam, m_nHost15) == 168);
static_assert(offsetof(CVekPostListParam, m_nListSetKind) == 176);
static_assert(offsetof(CVekPostListParam, m_nTitleSwitch) == 180);
static_assert(offsetof(CVekPostListParam, m_nHost18) == 184);
static_assert(offsetof(CVekPostListParam, m_strHost19) == 192);
static_assert(offsetof(CVekPostListParam, m_nHost20) == 304);
static_assert(offsetof(CVekPostListParam, m_ViewMatrix) == 312);
static_assert(offsetof(CVekPostListParam, m_nHost22) == 440);
static_assert(offsetof(CVekPostListParam, m_nUnitOption) == 452);
static_assert(offsetof(CVekPostListParam, m_arrHost23) == 456);
static_assert(offsetof(CVekPostListParam, m_nHost24) == 504);

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

static_assert(sizeof(CmqpMaterialData) == 792);
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
static_assert(offsetof(CmqpMaterialData, m_strExtraText) == 656);
static_assert(offsetof(CmqpMaterialData, m_nBodyID) == 768);
static_assert(offsetof(CmqpMaterialData, m_nTreatAsMaterial) == 772);
static_assert(offsetof(CmqpMaterialData, m_nDefaultFailureCriteria) == 776);
static_assert(offsetof(CmqpMaterialData, m_nSecondaryID) == 780);
static_assert(offsetof(CmqpMaterialData, m_nReserved) == 784);

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

static_assert(sizeof(mqp::AsmCompMembers) == 952);
static_assert(offsetof(mqp::AsmCompMembers, m_nCompID) == 0);
static_assert(offsetof(mqp::AsmCompMembers, m_nFirstElem) == 4);
static_assert(offsetof(mqp::AsmCompMembers, m_nLastElem) == 8);
static_assert(offsetof(mqp::AsmCompMembers, m_Color) == 12);
static_assert(offsetof(mqp::AsmCompMembers, m_BottomColor) == 28);
static_assert(offsetof(mqp::AsmCompMembers, m_bHidden) == 44);
static_assert(offsetof(mqp::AsmCompMembers, m_strCompName) == 48);
static_assert(offsetof(mqp::AsmCompMembers, m_strBodyName) == 160);
static_assert(offsetof(mqp::AsmCompMembers, m_nBodyID) == 272);
static_assert(offsetof(mqp::AsmCompMembers, m_nVisIndexBase) == 276);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost11) == 280);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost11) == 312);
static_assert(offsetof(mqp::AsmCompMembers, m_bOwnsMeshData) == 344);
static_assert(offsetof(mqp::AsmCompMembers, m_arrSectProp) == 352);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost14) == 376);
static_assert(offsetof(mqp::AsmCompMembers, m_strExtra) == 384);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost16) == 496);
static_assert(offsetof(mqp::AsmCompMembers, m_pHost16) == 512);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost17) == 560);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost18) == 632);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost19) == 704);
static_assert(offsetof(mqp::AsmCompMembers, m_pHost20) == 816);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost20) == 832);
static_assert(offsetof(mqp::AsmCompMembers, m_dHost20) == 856);
static_assert(offsetof(mqp::AsmCompMembers, m_bOwnsMeshData2) == 872);
static_assert(offsetof(mqp::AsmCompMembers, m_nHost22) == 876);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost23) == 896);
static_assert(offsetof(mqp::AsmCompMembers, m_arrHost24) == 920);
static_assert(offsetof(mqp::AsmCompMembers, m_bTempHidden) == 944);

static_assert(sizeof(CDspAsmComp) == 984);
static_assert(offsetof(CDspAsmComp, m_arrFlipData) == 952);
static_assert(offsetof(CDspAsmComp, m_nHost27) == 976);

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

static_assert(sizeof(CmqPostDataParam) == 1592);
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
static_assert(sizeof(CString) == 112);
static_assert(sizeof(COGLColor) == 16);
static_assert(sizeof(mqp::RecordField) == 32);
static_assert(sizeof(CArray<int, int>) == 24);
static_assert(sizeof(mqp::ViewMatrix) == 128);
// clang-format on
