#include "ApplicationHandlerI.h"

ApplicationHandlerI::ApplicationHandlerI() = default;

ApplicationHandlerI::ApplicationHandlerI(const ApplicationHandlerI &) = default;

ApplicationHandlerI &ApplicationHandlerI::operator=(const ApplicationHandlerI &) = default;

ApplicationHandlerI::~ApplicationHandlerI() = default;
