#include "app/connecter.h"

#include "app/MainWnd.h"

MainWnd* connecter::m_dialogPtr = nullptr;

void connecter::setPtr(MainWnd* dialog)
{
    m_dialogPtr = dialog;
}

void connecter::mycallback(double deltaTime, std::vector<unsigned char>* message, void* userData)
{
    m_dialogPtr->inSigReceived(deltaTime, message, userData);
}
