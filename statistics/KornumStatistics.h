/// @file
/// The statistics module: statistics of samples and of frequency tables, and the
/// distribution functions. The module is split by topic, one header per topic; this
/// header brings in every topic.
#pragma once

#include <kornum/BetaDistribution.h>
#include <kornum/ChiSquareDistribution.h>
#include <kornum/Combinatorics.h>
#include <kornum/DensityTables.h>
#include <kornum/DiscreteDistributions.h>
#include <kornum/ExponentialDistribution.h>
#include <kornum/FDistribution.h>
#include <kornum/GroupedStatistics.h>
#include <kornum/NormalDistributions.h>
#include <kornum/OrderStatistics.h>
#include <kornum/Regression.h>
#include <kornum/SampleMoments.h>
#include <kornum/StudentTDistribution.h>

/// @namespace KornumStatistics
/// The statistics module: sample statistics and distribution functions. It holds the
/// moments and means of one sample (SampleMoments.h), order statistics of a sorted
/// sample (OrderStatistics.h), statistics of data grouped into equal-width classes
/// (GroupedStatistics.h), the least-squares line (Regression.h), factorials and
/// binomial coefficients (Combinatorics.h), and the distribution functions with their
/// inverses and density tables (normal, log-normal, chi-square, Student t, F, beta,
/// exponential, binomial and Poisson). Results are `Float`; failures
/// raise Platform::EMathError with the text of a Kornum_RS_Math identifier. See
/// @ref page_statistics and @ref page_distributions.
