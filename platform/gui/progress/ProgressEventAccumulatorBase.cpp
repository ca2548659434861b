#include "ProgressEventAccumulatorBase.h"

ProgressEventAccumulatorBase::~ProgressEventAccumulatorBase() = default;
