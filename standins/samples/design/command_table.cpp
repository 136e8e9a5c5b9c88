// The table; see the header.
#include "command_table.h"

#include "annotation_commands.h"
#include "axis_commands.h"
#include "building_commands.h"
#include "document_commands.h"
#include "export_drawing.h"
#include "layer_commands.h"
#include "opening_commands.h"
#include "symbol_commands.h"
#include "wall_commands.h"

#include <string>

#include "adslib.h"

namespace {
constexpr int kPicks = ACRX_CMD_USEPICKSET;
}

void TellNotInPackage() {
  resbuf names{};
  if (acedGetVar(L"CMDNAMES", &names) != RTNORM || names.restype != RTSTR) return;
  acutPrintf(L"\n命令 %ls 属于本安装包没有提供的模块。\n", names.resval.rstring);
  acutDelString(names.resval.rstring);
}

const DesignCommand kDesignCommands[] = {
    {L"TAxis", DrawAxes},
    {L"TAxisArc", DrawArcAxes},
    {L"TAxisDim", DimensionAxes},
    {L"TAxisLtype", SwitchAxisLinetype},
    {L"TAxisNo", NumberAxis},
    {L"TAddAxno", AddAxisNumber},
    {L"TDelAxno", DeleteAxisNumbers, kPicks},
    {L"TSortAxno", SortAxisNumbers, kPicks},
    {L"TRevAxno", ReverseAxisNumbers, kPicks},

    {L"TWall", DrawWalls},
    {L"TArcWall", DrawArcWall},
    {L"TLine2Wall", LinesToWalls, kPicks},
    {L"TAxis2Wall", AxesToWalls, kPicks},
    {L"TWallOffset", OffsetWall},
    {L"TWallWidth", SetWallWidth, kPicks},
    {L"TWallHeight", SetWallHeight, kPicks},
    {L"TColumn", InsertColumn},

    {L"TDoor", InsertDoors},
    {L"TWindow", InsertWindows},
    {L"TDoorFlipIn", FlipDoorsAcross, kPicks},
    {L"TDoorFlipLeft", FlipDoorsAlong, kPicks},
    {L"TWinLab", LabelOpening},
    {L"TWinLabReset", ResetOpeningLabels, kPicks},
    {L"TBatLabel", LabelOpenings, kPicks},
    {L"TWinTable", DrawOpeningTable},

    {L"TRoom", DrawRoom},
    {L"TRoomOutline", OutlineRoom},
    {L"TArea", MeasureRoom},
    {L"TAreaSum", SumRooms, kPicks},
    {L"TFloorTile", DrawFloorTiles},
    {L"TStair", DrawStair},
    {L"TArcStair", DrawArcStair},
    {L"TStair2", DrawDoubleStair},
    {L"TLift", DrawLift},
    {L"TBalcony", DrawBalcony},
    {L"TStep", DrawSteps},
    {L"TFrame", DrawSheetFrame},

    {L"TText", WriteText},
    {L"TMText", WriteLines},
    {L"TNewTable", DrawSheet},
    {L"TFind", ReplaceTexts},

    {L"TDim2P", Dimension},
    {L"TDimPoint", DimensionPoints},
    {L"TDimWall", DimensionWall},
    {L"TDimDoor", DimensionWallOpenings},
    {L"TDimRadius", DimensionRadius},
    {L"TDimAngle", AngularDimension},
    {L"TElev", MarkElevation},
    {L"TArrow", DrawArrow},
    {L"TSection", DrawSectionSymbol},
    {L"TDetail", DrawPointer},
    {L"TNorth", DrawNorthArrow},
    {L"TTitle", WriteTitle},

    {L"TLayer", SetLayer},
    {L"TBlockLayer", MoveBlocksToLayer, kPicks},
    {L"TLibrary", InsertLibraryBlock},
    {L"TOrtho", ToggleOrtho},
    {L"TSaveAs", ExportDrawing},
    {L"TObjEdit", EditObject, kPicks},

    // Commands of modules that are not part of this package.
    {L"TApron", TellNotInPackage},
    {L"TAxisTrim", TellNotInPackage},
    {L"TBatSave", TellNotInPackage},
    {L"TBayWindow", TellNotInPackage},
    {L"TBlockEdit", TellNotInPackage},
    {L"TCellEdit", TellNotInPackage},
    {L"TColumnAlign", TellNotInPackage},
    {L"TCornerColumn", TellNotInPackage},
    {L"TDimBreak", TellNotInPackage},
    {L"TDimJoin", TellNotInPackage},
    {L"TDimMerge", TellNotInPackage},
    {L"TDimSwitch", TellNotInPackage},
    {L"TGableRoof", TellNotInPackage},
    {L"THandrail", TellNotInPackage},
    {L"THatchHole", TellNotInPackage},
    {L"THatchNoHole", TellNotInPackage},
    {L"TLineHatch", TellNotInPackage},
    {L"TMergeTable", TellNotInPackage},
    {L"TOptions", TellNotInPackage},
    {L"TOutWallHeight", TellNotInPackage},
    {L"TOutWallWidth", TellNotInPackage},
    {L"TPScale", TellNotInPackage},
    {L"TPolyColumn", TellNotInPackage},
    {L"TProtect", TellNotInPackage},
    {L"TPyramidRoof", TellNotInPackage},
    {L"TRamp", TellNotInPackage},
    {L"TRoof", TellNotInPackage},
    {L"TSanitary", TellNotInPackage},
    {L"TSetInWall", TellNotInPackage},
    {L"TSetOutWall", TellNotInPackage},
    {L"TSheetEdit", TellNotInPackage},
    {L"TShowOutWall", TellNotInPackage},
    {L"TSplitTable", TellNotInPackage},
    {L"TStripWindow", TellNotInPackage},
    {L"TStyle", TellNotInPackage},
    {L"TViewport", TellNotInPackage},
    {L"TVpZoom", TellNotInPackage},
    {L"TWallAlign", TellNotInPackage},
    {L"TWallClean", TellNotInPackage},
    {L"TWallFillet", TellNotInPackage},
    {L"TWallPave", TellNotInPackage},
    {L"TWallSide", TellNotInPackage},
    {L"TWinCheck", TellNotInPackage},

    // Not in the product menu.
    {L"TSheet", DrawSheet},
    {L"TNote", DrawNote},
    {L"TFloorRect", DrawFloorRect},
    {L"TDrawingIndex", DrawIndex},
    {L"TIndexPointer", DrawPointer},
    {L"TAxisLabel", DrawAxisLabel},
    {L"TSlow", DrawSlow},
    {L"TGroupKey", GroupObjects, kPicks},
    {L"TSymbol", DrawSymbol},
    {L"TDocSwitch", SwitchActivation},
};
const int kDesignCommandCount = sizeof kDesignCommands / sizeof *kDesignCommands;
