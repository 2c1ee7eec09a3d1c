// A library with nothing in it but embedded resources.
int orvCarrier()
{
    return 1;
}
