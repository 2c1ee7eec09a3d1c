// A library with nothing in it but the plug-in's resources.
int orvTestCarrier()
{
    return 1;
}
