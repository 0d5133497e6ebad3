/// @file
/// Every module of the library in one include: the platform slice, the base modules, the
/// controls' base classes and the runtime package's modules (vectors, statistics, matrices,
/// random variates, the descriptive-statistics component, the math label). The Cairo
/// canvas (`<kornum/KornumCanvas.h>`, library kornum_canvas) is not included.
#pragma once

#include <kornum/Platform.h>
#include <kornum/PlatformClasses.h>
#include <kornum/PlatformComponents.h>
#include <kornum/PlatformStreaming.h>
#include <kornum/PlatformGraphics.h>
#include <kornum/PlatformInput.h>
#include <kornum/PlatformRandom.h>

#include <kornum/Kornumglobals.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Kornumsystem.h>
#include <kornum/Kornumfinancials.h>
#include <kornum/Kornumconvert.h>
#include <kornum/Kornummsgs.h>
#include <kornum/Kornumcontrols.h>

#include <kornum/KornumVector.h>
#include <kornum/KornumStatistics.h>
#include <kornum/KornumMatrix.h>
#include <kornum/KornumFinVector.h>
#include <kornum/KornumFinMatrix.h>
#include <kornum/KornumRandom.h>
#include <kornum/KornumDescStats.h>
#include <kornum/Kornum_RS_DescStats.h>
#include <kornum/KornumMathLabel.h>
#include <kornum/KornumGridEdit.h>
#include <kornum/KornumVectorEdit.h>
#include <kornum/KornumMatrixEdit.h>
#include <kornum/KornumPackage.h>
#include <kornum/KornumSharded.h>
